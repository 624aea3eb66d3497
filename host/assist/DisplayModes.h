/** The viewer's display modes, enlarged text and high contrast, as the theme shows them. */
#pragma once

#include "SettingsWatch.h"

#include <Elementary.h>
#include <filesystem>
#include <optional>

namespace veskar
{

/**
 * Exchanges the TV's theme for the one made for the modes that are set, at once and with each change of the settings;
 * a screen that is shown keeps its theme, because its widgets would lose the focus, and the exchange waits for its end.
 * The themes lie beside each other: veskar-theme.edj, -large, -contrast, -large-contrast. Main loop only, while the
 * toolkit is initialised.
 */
class DisplayModes
{
public:
    DisplayModes();
    DisplayModes(const DisplayModes&) = delete;
    DisplayModes& operator=(const DisplayModes&) = delete;
    /** Never destroyed: the window keeps a pointer to it. */
    ~DisplayModes() = delete;

private:
    static void s_OnWindowHidden(void* data, Evas* evas, Evas_Object* window, void* event);
    void m_SettingsChanged();
    void m_WatchWindow();
    void m_Apply();

    std::filesystem::path m_plainTheme;
    std::filesystem::path m_theme;
    std::optional<SettingsWatch> m_settings;
};

} // namespace veskar
