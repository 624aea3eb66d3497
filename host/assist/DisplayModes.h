/** The viewer's display modes, enlarged text and high contrast, as the theme shows them. */
#pragma once

#include <Ecore_File.h>
#include <Elementary.h>
#include <filesystem>

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
    ~DisplayModes();

private:
    static void s_OnChange(void* data, Ecore_File_Monitor* monitor, Ecore_File_Event event, const char* path);
    static void s_OnWindowHidden(void* data, Evas* evas, Evas_Object* window, void* event);
    void m_Watch();
    void m_WatchWindow();
    void m_Apply();

    std::filesystem::path m_plainTheme;
    std::filesystem::path m_theme;
    Ecore_File_Monitor* m_monitor = nullptr;
};

} // namespace veskar
