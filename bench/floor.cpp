/**
 * What any dialogue on this toolkit costs: the least program that opens a window of the screen's size with a label in
 * it, with the switches, the theme and the activation by the bus that the application has.
 */
#include <Ecore.h>
#include <Efreet.h>
#include <Eldbus.h>
#include <Elementary.h>
#include <cstdlib>

int main(int argc, char** argv)
{
    setenv("ECORE_EVAS_FORCE_SYNC_RENDER", "1", 0);
    efreet_cache_disable();
    ecore_app_no_system_modules();
    ecore_init();
    eldbus_init();
    eldbus_name_request(eldbus_connection_get(ELDBUS_CONNECTION_TYPE_SESSION), "org.tizen.veskar-floor", 0, nullptr,
                        nullptr);
    elm_init(argc, argv);
    elm_theme_overlay_add(nullptr, getenv("VESKAR_THEME"));
    Evas_Object* window = elm_win_add(nullptr, "floor", ELM_WIN_BASIC);
    elm_win_alpha_set(window, EINA_TRUE);
    Evas_Object* label = elm_label_add(window);
    elm_object_text_set(label, "The floor");
    elm_win_resize_object_add(window, label);
    evas_object_show(label);
    evas_object_resize(window, 1920, 1080);
    evas_object_show(window);
    elm_run();
    elm_shutdown();
}
