/** The theme for the viewer's display modes: enlarged text and high contrast. */
#pragma once

#include "SettingsWatch.h"

#include <Elementary.h>
#include <filesystem>
#include <optional>

namespace veskar
{

/**
 * Replaces the TV's theme by the one for the current modes, immediately and after each change of the settings. While a
 * screen is shown the theme stays, because the screen's widgets would lose the focus; it is replaced when the screen
 * ends. All themes are in one folder: veskar-theme.edj, -large, -contrast, -large-contrast. Main loop only, while the
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
