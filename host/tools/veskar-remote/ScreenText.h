/** What the screen says, as the application tells it on the TV's bus. */
#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace sdbus
{
class IConnection;
}

namespace veskar
{

/** There is no bus, or it has gone. */
struct NoBus : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

class ScreenText
{
public:
    /** Throws NoBus. */
    ScreenText();
    ~ScreenText();

    ScreenText(const ScreenText&) = delete;
    ScreenText& operator=(const ScreenText&) = delete;

    /** What the voice guide was handed last; nothing while the application does not run. Never starts it. */
    std::optional<std::string> Now();

private:
    std::unique_ptr<sdbus::IConnection> m_bus;
};

} // namespace veskar
