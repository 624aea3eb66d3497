#include "Scrim.h"

#include "Widgets.h"

namespace veskar
{
namespace
{

constexpr double AT_ONCE = 0.5; // seconds between two screens of which the second replaces the first

double s_lastGone = -AT_ONCE;

/** The layout that has the scrim, or null. */
Evas_Object* LayoutWithScrim(const Evas_Object* popup)
{
    const Evas_Object* around = elm_object_part_content_get(popup, nullptr);
    while (around != nullptr && !Is(around, "elm_notify"))
    {
        around = elm_object_parent_widget_get(around);
    }
    Evas_Object* found = nullptr;
    void* member = nullptr;
    Eina_List* members = around != nullptr ? evas_object_smart_members_get(around) : nullptr;
    EINA_LIST_FREE(members, member)
    {
        auto* object = static_cast<Evas_Object*>(member);
        if (Is(object, "edje") && edje_object_part_exists(object, "scrim"))
        {
            found = object;
        }
    }
    return found;
}

} // namespace

Scrim::Scrim(Evas_Object* popup)
    : m_popup(popup), m_shown(popup, EVAS_CALLBACK_SHOW, CallEvent<&Scrim::m_OnShown>, this),
      m_hidden(popup, EVAS_CALLBACK_HIDE, CallEvent<&Scrim::m_OnHidden>, this)
{
}

Scrim::~Scrim()
{
    if (evas_object_visible_get(m_popup))
    {
        m_OnHidden();
    }
}

void Scrim::m_OnShown()
{
    Evas_Object* layout = LayoutWithScrim(m_popup);
    if (layout != nullptr && ecore_loop_time_get() - s_lastGone < AT_ONCE)
    {
        edje_object_signal_emit(layout, "veskar,replaces", "veskar");
    }
}

void Scrim::m_OnHidden()
{
    s_lastGone = ecore_loop_time_get();
}

} // namespace veskar
