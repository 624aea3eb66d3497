// The toolkit's functions that the linker redirects here (--wrap). Those with a visible effect are passed on to the
// toolkit.

#include "Tv.h"

#include <gtest/gtest.h>

namespace
{

/** The main-loop sections that this thread is in; every toolkit call needs one. */
thread_local int sections = 0;

void Did(const std::string& deed)
{
    EXPECT_GT(sections, 0) << deed;
    tv.deeds.push_back(deed);
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    Evas_Object* __real_elm_win_add(Evas_Object* parent, const char* name, Elm_Win_Type type);
    Evas_Object* __wrap_elm_win_add(Evas_Object* parent, const char* name, Elm_Win_Type type)
    {
        tv.deeds.push_back("window " + std::string(name) + ' ' + std::to_string(type));
        tv.window = tv.Fails("elm_win_add") ? nullptr : __real_elm_win_add(parent, name, type);
        return tv.window;
    }

    void __wrap_elm_win_iconified_set(Evas_Object*, Eina_Bool iconified)
    {
        Did(iconified ? "iconify" : "restore");
    }

    void __wrap_elm_win_activate(Evas_Object*)
    {
        Did("activate");
    }
    void __wrap_elm_language_set(const char* language)
    {
        Did("language " + std::string(language));
    }

    int __real_ecore_init();
    int __wrap_ecore_init()
    {
        return tv.Fails("ecore_init") ? 0 : __real_ecore_init();
    }

    int __real_ecore_thread_main_loop_begin();
    int __wrap_ecore_thread_main_loop_begin()
    {
        ++sections;
        return __real_ecore_thread_main_loop_begin();
    }
    int __real_ecore_thread_main_loop_end();
    int __wrap_ecore_thread_main_loop_end()
    {
        --sections;
        return __real_ecore_thread_main_loop_end();
    }

    // A Wayland connection. Every object is a pointer to this TV, because nobody uses its contents.

#define OPAQUE(Result, function, Argument)                                                                             \
    Result* __wrap_##function(Argument*)                                                                               \
    {                                                                                                                  \
        EXPECT_GT(sections, 0) << #function;                                                                           \
        return reinterpret_cast<Result*>(&tv);                                                                         \
    }
    OPAQUE(wl_display, ecore_wl2_display_get, Ecore_Wl2_Display)
    OPAQUE(wl_registry, ecore_wl2_display_registry_get, Ecore_Wl2_Display)
    OPAQUE(Ecore_Wl2_Input, ecore_wl2_input_default_input_get, const Ecore_Wl2_Display)
    OPAQUE(wl_seat, ecore_wl2_input_seat_get, Ecore_Wl2_Input)
    OPAQUE(Ecore_Wl2_Window, ecore_evas_wayland2_window_get, const Ecore_Evas)
    void ecore_wl2_sync(void)
    {
        EXPECT_GT(sections, 0);
    }

    Ecore_Wl2_Display* __wrap_ecore_wl2_connected_display_get(const char*)
    {
        EXPECT_GT(sections, 0);
        return tv.hasWaylandDisplay ? reinterpret_cast<Ecore_Wl2_Display*>(&tv) : nullptr;
    }

    Eina_Iterator* __wrap_ecore_wl2_display_globals_get(Ecore_Wl2_Display*)
    {
        static std::vector<void*> globals;
        globals.clear();
        for (Ecore_Wl2_Global& global : tv.globals)
        {
            globals.push_back(&global);
        }
        globals.push_back(nullptr);
        return eina_carray_iterator_new(globals.data());
    }
}
// NOLINTEND(bugprone-reserved-identifier)
