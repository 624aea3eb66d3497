#pragma once

#include <Elementary.h>

namespace VESKAR_APP
{

/**
 * Sees to it that a list which has the focus has it on a row: the toolkit focuses a list and none of its rows, and the
 * viewer's first key would be lost on finding one.
 *
 * Belongs to the list's screen. The window outlives that, so the destructor takes the callback back.
 */
class FirstRowFocus
{
public:
    /**
     * Makes the first row the one that takes the focus when the list gets it, and asks it for the list; whoever asks
     * later, as a screen's first button does, has it instead. The list has rows and is not on the screen yet.
     */
    FirstRowFocus(Evas_Object* window, Evas_Object* list);
    ~FirstRowFocus();

    FirstRowFocus(const FirstRowFocus&) = delete;
    FirstRowFocus& operator=(const FirstRowFocus&) = delete;

private:
    static void s_OnWindowFocused(void* data, Evas_Object* window, void* eventInfo);

    Evas_Object* m_window;
    Evas_Object* m_list;
};

} // namespace VESKAR_APP
