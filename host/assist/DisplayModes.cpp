#include "DisplayModes.h"

#include "Log.h"
#include "Mode.h"
#include "SettingKeys.h"
#include "appfw/Window.h"
#include "toolkit/Widgets.h"

#include <memory>
#include <string>

namespace veskar
{
namespace
{

/** The TV's theme is the only overlay; the application framework has put it on the toolkit's theme. */
std::filesystem::path LoadedTheme()
{
    const Eina_List* overlays = elm_theme_overlay_list_get(nullptr);
    return overlays ? static_cast<const char*>(eina_list_data_get(overlays)) : "";
}

std::filesystem::path ThemeFor(const std::filesystem::path& plain, bool enlarged, bool highContrast)
{
    std::string name = plain.stem().string();
    name += enlarged ? "-large" : "";
    name += highContrast ? "-contrast" : "";
    return plain.parent_path() / (name + plain.extension().string());
}

bool ContainsShownPopup(const Evas_Object* object)
{
    if (Is(object, "elm_popup") && evas_object_visible_get(object))
    {
        return true;
    }
    if (!MayHaveMembers(object))
    {
        return false;
    }
    const std::unique_ptr<Eina_Iterator, decltype(&eina_iterator_free)> members(evas_object_smart_iterator_new(object),
                                                                                eina_iterator_free);
    void* member = nullptr;
    while (members && eina_iterator_next(members.get(), &member))
    {
        if (ContainsShownPopup(static_cast<Evas_Object*>(member)))
        {
            return true;
        }
    }
    return false;
}

/** A screen is a popup on the window. The window may be shown without a popup. */
bool IsScreenShown()
{
    const Evas_Object* window = FirstWindow();
    if (!window || !evas_object_visible_get(window))
    {
        return false;
    }
    for (auto* object = evas_object_bottom_get(evas_object_evas_get(window)); object;
         object = evas_object_above_get(object))
    {
        if (ContainsShownPopup(object))
        {
            return true;
        }
    }
    return false;
}

} // namespace

DisplayModes::DisplayModes() : m_plainTheme(LoadedTheme()), m_theme(m_plainTheme)
{
    if (m_plainTheme.empty())
    {
        ASSIST_WARN("no theme of the TV is loaded: enlarged text and high contrast show in texts alone");
        return;
    }
    m_settings.emplace(std::initializer_list<const char*>{ENLARGED_TEXT_KEY, HIGH_CONTRAST_KEY},
                       [this] { m_SettingsChanged(); });
    m_WatchWindow();
    m_Apply();
}

/** The window is hidden between two screens, even when one replaces the other. */
void DisplayModes::m_WatchWindow()
{
    if (Evas_Object* window = FirstWindow())
    {
        evas_object_event_callback_add(window, EVAS_CALLBACK_HIDE, s_OnWindowHidden, this);
    }
}

void DisplayModes::m_SettingsChanged()
{
    if (!IsScreenShown())
    {
        m_Apply();
    }
}

void DisplayModes::s_OnWindowHidden(void* data, Evas*, Evas_Object*, void*)
{
    static_cast<DisplayModes*>(data)->m_Apply();
}

void DisplayModes::m_Apply()
{
    const auto theme = ThemeFor(m_plainTheme, IsOn(ENLARGED_TEXT_KEY), IsOn(HIGH_CONTRAST_KEY));
    if (theme == m_theme)
    {
        return;
    }
    std::error_code error;
    if (!std::filesystem::exists(theme, error))
    {
        ASSIST_WARN("the theme %s is missing: %s stays", theme.c_str(), m_theme.c_str());
        return;
    }
    elm_theme_overlay_del(nullptr, m_theme.c_str());
    elm_theme_overlay_add(nullptr, theme.c_str());
    m_theme = theme;
}

} // namespace veskar
