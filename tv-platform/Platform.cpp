// The platform's functions that the stock toolkit lacks, on a TV that cannot do anything: each fails as its header
// says. The log alone works, on standard error.

#include <IVesKarController.h>
#include <app.h>
#include <app_context_manager.h>
#include <app_control.h>
#include <aul.h>
#include <dlog.h>
#include <ea.h>
#include <ecore_wayland.h>
#include <key_router.h>
#include <system_info.h>
#include <ui_orientation.h>
#include <vconf.h>
#include <voice_guide.h>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace
{
constexpr int FAILED = -1;
constexpr int KEYROUTER_FAILED = 0;
constexpr int UNKNOWN_FLAG = -22;
} // namespace

VESKAR_API::IVesKarController* VESKAR_API::IVesKarController::Instance()
{
    return nullptr;
}

// --- app.h

int ui_app_main(int, char**, ui_app_lifecycle_callback_s*, void*)
{
    return APP_ERROR_INVALID_CONTEXT;
}
int ui_app_add_event_handler(app_event_handler_h*, app_event_type_e, app_event_cb, void*)
{
    return APP_ERROR_INVALID_CONTEXT;
}

// --- app_context_manager.h, aul.h

int app_context_manager_request_task(const char*, const char*)
{
    return FAILED;
}
int aul_app_is_running(const char*)
{
    return 0;
}

// --- app_control.h

int app_control_create(app_control_h*)
{
    return APP_CONTROL_ERROR_OUT_OF_MEMORY;
}
int app_control_destroy(app_control_h)
{
    return APP_CONTROL_ERROR_INVALID_PARAMETER;
}
int app_control_set_app_id(app_control_h, const char*)
{
    return APP_CONTROL_ERROR_INVALID_PARAMETER;
}
int app_control_add_extra_data(app_control_h, const char*, const char*)
{
    return APP_CONTROL_ERROR_INVALID_PARAMETER;
}
int app_control_get_extra_data(app_control_h, const char*, char**)
{
    return APP_CONTROL_ERROR_KEY_NOT_FOUND;
}
int app_control_get_extra_data_array(app_control_h, const char*, char***, int*)
{
    return APP_CONTROL_ERROR_KEY_NOT_FOUND;
}
int app_control_send_launch_request(app_control_h, app_control_reply_cb, void*)
{
    return APP_CONTROL_ERROR_LAUNCH_REJECTED;
}

// --- dlog.h

int __dlog_print(log_id_t, int, const char* tag, const char* format, ...)
{
    std::fprintf(stderr, "%s: ", tag);
    va_list values;
    va_start(values, format);
    const int printed = std::vfprintf(stderr, format, values);
    va_end(values);
    std::fputc('\n', stderr);
    return printed;
}

// --- ea.h

void ea_init() {}
Evas_Object* ea_textpage_add(Evas_Object*)
{
    return nullptr;
}
void ea_textpage_text_set(Evas_Object*, char* text)
{
    std::free(text);
}
void ea_textpage_page_show(Evas_Object*, int) {}
int ea_textpage_current_page_get(const Evas_Object*)
{
    return 0;
}
int ea_textpage_total_page_get(const Evas_Object*)
{
    return 0;
}
void ea_textpage_textblock_style_set(Evas_Object*, Evas_Textblock_Style* style)
{
    evas_textblock_style_free(style);
}
Evas_Object* ea_pin_add(Evas_Object*, int, Ea_Pin_Entered_Cb, void*)
{
    return nullptr;
}
void ea_pin_reset(Ea_Pin*) {}
int ea_pin_get_text(const Ea_Pin*, char*, int)
{
    return 0;
}

// --- ecore_wayland.h

void ecore_wl2_sync() {}

// --- key_router.h

int KeyRouter_Initialize(wl_display*, wl_registry*, wl_seat*, unsigned int)
{
    return KEYROUTER_FAILED;
}
void KeyRouter_Finalize() {}
void KeyRouter_Reset_KeyList(_KeyList* list)
{
    list->count = 0;
}
int KeyRouter_Add_Key(const char*, int, _KeyList*)
{
    return KEYROUTER_FAILED;
}
int KeyRouter_Remove_Key(const char*, int, _KeyList*)
{
    return KEYROUTER_FAILED;
}
int KeyRouter_Set_KeyList(wl_surface*, const _KeyList*)
{
    return KEYROUTER_FAILED;
}
int KeyRouter_UnSet_KeyList(wl_surface*, const _KeyList*)
{
    return KEYROUTER_FAILED;
}

// --- system_info.h, ui_orientation.h, vconf.h

int system_info_get_custom_bool(const char*, bool*)
{
    return UNKNOWN_FLAG;
}
int ua_UI_orientation_get()
{
    return 0;
}
int vconf_get_int(const char*, int*)
{
    return FAILED;
}
int vconf_get_bool(const char*, int*)
{
    return FAILED;
}
char* vconf_get_str(const char*)
{
    return nullptr;
}

// --- voice_guide.h

void elm_access_force_say(const char*) {}
