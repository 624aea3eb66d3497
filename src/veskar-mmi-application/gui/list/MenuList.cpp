#include "MenuList.h"

#include "EflGuard.h"
#include "Log.h"
#include "Names.h"

namespace VESKAR_APP
{

Evas_Object* AddMenuList(Evas_Object* parent)
{
    Evas_Object* list = EFL_GUARD(elm_genlist_add, parent);
    if (list == nullptr)
    {
        LOG_ERROR("Unable to create menu list");
    }
    return list;
}

Evas_Object* CreateEvenMenuList(Evas_Object* parent, Elm_Object_Select_Mode selectMode, bool multiSelect)
{
    Evas_Object* list = AddMenuList(parent);
    if (list == nullptr)
    {
        return nullptr;
    }
    const MainLoopSection section;
    elm_genlist_select_mode_set(list, selectMode);
    elm_genlist_homogeneous_set(list, EINA_TRUE);
    ApplyMenuListLook(list);
    elm_genlist_multi_select_set(list, multiSelect);
    SwitchFocusHighlightOn();
    return list;
}

void ApplyMenuListLook(Evas_Object* list)
{
    elm_genlist_mode_set(list, ELM_LIST_SCROLL);
    elm_object_style_set(list, SCROLLER_STYLE);
    elm_scroller_policy_set(list, ELM_SCROLLER_POLICY_OFF, ELM_SCROLLER_POLICY_ON);
}

void SwitchFocusHighlightOn()
{
    elm_config_focus_highlight_enabled_set(EINA_TRUE);
    elm_config_focus_highlight_animate_set(EINA_TRUE);
}

} // namespace VESKAR_APP
