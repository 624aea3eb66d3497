/**
 * The screen that the viewer sees, on the application's object on the bus, for programs of the TV's own user:
 *
 *     signals     Shown(i ui_id, y source_id, s kind, s title), when the first frame is on the display
 *                 Closed(i ui_id, y source_id), when it has gone or another one replaces it
 *     properties  UiId i, SourceId y, Kind s, Title s: as the request gave them; 0 and empty without a screen
 *                 Text s: what the voice guide was handed last, without its markup
 *                 HeldKeys as: the keys that the application holds at the key router
 *
 * What the viewer enters is in none of them.
 */
#pragma once

#include "Bus.h"
#include "OwnScreen.h"

namespace veskar
{

class ScreenObject : private OwnScreen::Audience
{
public:
    ScreenObject(Eldbus_Connection* connection, const std::string& appId);
    ~ScreenObject() override;

    ScreenObject(const ScreenObject&) = delete;
    ScreenObject& operator=(const ScreenObject&) = delete;

private:
    void Shown(const OwnScreen::Request& screen) override;
    void Closed(const OwnScreen::Request& screen) override;
    void m_TellProperties();

    BusObject m_object;
};

} // namespace veskar
