#include "ScreenFit.h"

#include "Panel.h"
#include "ThemeSizes.h"
#include "Widgets.h"

#include <algorithm>

namespace veskar
{
namespace
{

constexpr double SMALLEST = 160; // pixels of a 1920x1080 screen: three lines, an image to be recognised
constexpr double DESIGN_SCALE = 2.0;

bool IsScroller(const Evas_Object* object)
{
    return Is(object, "elm_genlist") || Is(object, "elm_scroller");
}

bool IsEmptyBox(const Evas_Object* object)
{
    if (!Is(object, "elm_box"))
    {
        return false;
    }
    Eina_List* children = elm_box_children_get(object);
    const bool empty = children == nullptr;
    eina_list_free(children);
    return empty;
}

Size LeastSizeOf(const Evas_Object* object)
{
    return IsScroller(object) ? OuterLeastSize(object) : LeastSize(object);
}

void SetLeastSizeOf(Evas_Object* object, Size size)
{
    if (IsScroller(object))
    {
        SetOuterLeastSize(object, size);
        return;
    }
    evas_object_size_hint_min_set(object, size.width, size.height);
}

int Lowered(int limit, int asked, int excess)
{
    const int smallest = static_cast<int>(SMALLEST * elm_config_scale_get() / DESIGN_SCALE);
    return excess > 0 ? std::max(smallest, std::min(limit, asked) - excess) : limit;
}

} // namespace

ScreenFit::ScreenFit(Evas_Object* window, Evas_Object* popup)
    : m_window(window), m_popup(popup),
      m_windowResized(window, EVAS_CALLBACK_RESIZE, CallEvent<&ScreenFit::m_OnWindowResized>, this),
      m_beforeDrawing(CallTask<&ScreenFit::m_Fit>, this)
{
}

void ScreenFit::m_OnWindowResized()
{
    m_Collect();
    m_limit = {UNLIMITED, UNLIMITED};
    m_screen = {};
    m_Apply();
    // At once: the theme must not hear of a screen that is too large for a moment only and keep it in that state.
    m_Fit();
}

void ScreenFit::m_Fit()
{
    // More are not needed, unless the program answers each lowering with a size of its own: then it would never end.
    constexpr int MOST_LAYOUTS = 5;
    Evas* canvas = evas_object_evas_get(m_window);
    evas_smart_objects_calculate(canvas);
    // Only now has everything its place; what is lowered is laid out again before the viewer sees it.
    for (int layouts = 1; layouts < MOST_LAYOUTS && m_Lower(); ++layouts)
    {
        evas_smart_objects_calculate(canvas);
    }
}

bool ScreenFit::m_Lower()
{
    const Evas_Object* content = elm_object_part_content_get(m_popup, nullptr);
    if (content == nullptr)
    {
        return false;
    }
    const Evas_Object* panel = PanelAround(content);
    if (panel == nullptr)
    {
        return false;
    }
    const Size screen{SizeOf(content).width, SizeOf(panel).height};
    Size room{ThemeSize(panel, "most_width"), ThemeSize(panel, "most_height")};
    if (screen.width <= room.width && screen.height <= room.height)
    {
        return false;
    }
    m_Collect();
    if (m_HasList())
    {
        room.width = ThemeSize(panel, "most_list_width");
    }
    Size asked;
    bool changed = false;
    for (const auto& [object, least] : m_leasts)
    {
        asked = {std::max(asked.width, least.asked.width), std::max(asked.height, least.asked.height)};
        changed = changed || least.given.height > m_limit.height || least.given.width > m_limit.width;
    }
    if (changed)
    {
        // The program has set a size of its own again since.
        m_Apply();
        return true;
    }
    const Size limit{Lowered(m_limit.width, asked.width, screen.width - room.width),
                     Lowered(m_limit.height, asked.height, screen.height - room.height)};
    if (screen == m_screen || limit == m_limit)
    {
        return false;
    }
    m_screen = screen;
    m_limit = limit;
    m_Apply();
    return true;
}

bool ScreenFit::m_HasList() const
{
    return std::any_of(m_leasts.begin(), m_leasts.end(),
                       [](const auto& least) { return Is(least.first, "elm_genlist"); });
}

void ScreenFit::m_Collect()
{
    std::map<Evas_Object*, Least> found;
    if (Evas_Object* content = elm_object_part_content_get(m_popup, nullptr))
    {
        m_Visit(content, found);
    }
    m_leasts = std::move(found);
}

void ScreenFit::m_Visit(Evas_Object* object, std::map<Evas_Object*, Least>& found)
{
    if (IsScroller(object) || Is(object, "elm_image") || IsEmptyBox(object))
    {
        const Size now = LeastSizeOf(object);
        const auto known = m_leasts.find(object);
        const bool untouched = known != m_leasts.end() && known->second.given == now;
        found[object] = {untouched ? known->second.asked : now, now};
        return;
    }
    Eina_List* contents = Is(object, "elm_box")      ? elm_box_children_get(object)
                          : Is(object, "elm_layout") ? elm_layout_content_swallow_list_get(object)
                                                     : nullptr;
    void* content = nullptr;
    EINA_LIST_FREE(contents, content)
    {
        m_Visit(static_cast<Evas_Object*>(content), found);
    }
}

void ScreenFit::m_Apply()
{
    for (auto& [object, least] : m_leasts)
    {
        const Size given{std::min(least.asked.width, m_limit.width), std::min(least.asked.height, m_limit.height)};
        if (given != least.given)
        {
            least.given = given;
            SetLeastSizeOf(object, given);
        }
    }
}

} // namespace veskar
