// The platform's C functions, and the controller's library.

#include "Tv.h"

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <mutex>
#include <sstream>

#include <IVesKarController.h>
#include <app_context_manager.h>
#include <aul.h>
#include <ea.h>
#include <key_router.h>
#include <system_info.h>
#include <ui_orientation.h>
#include <vconf.h>

namespace
{

void Did(const std::string& verb, const std::string& arguments)
{
    tv.deeds.push_back(verb + ' ' + arguments);
}

template <typename Value>
int Read(const std::map<std::string, Value>& values, const char* key, Value* value)
{
    const auto found = values.find(key);
    *value = found == values.end() ? *value : Value(found->second);
    return found == values.end() ? -22 : 0;
}

int Result(const char* function, int error)
{
    return tv.Fails(function) ? error : 0;
}

// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): never deleted.
class Controller final : public VESKAR_API::IVesKarController
{
    void Reserved1() override { Did("reserved", "1"); }
    void Reserved2() override { Did("reserved", "2"); }
    void Reserved3() override { Did("reserved", "3"); }
    void Reserved4() override { Did("reserved", "4"); }

    bool OpenMenuPosition(int menuPosition) override
    {
        Did("menu", std::to_string(menuPosition));
        return true;
    }

    bool SendResponse(int uiId, unsigned char sourceId, int kind, unsigned char button, unsigned char item,
                      std::string data) override
    {
        std::ostringstream answer;
        answer << uiId << ' ' << +sourceId << ' ' << kind << ' ' << +button << ' ' << +item << " \"" << data << '"';
        Did("answer", answer.str());
        return false; // nobody looks at it
    }
};

} // namespace

VESKAR_API::IVesKarController* VESKAR_API::IVesKarController::Instance()
{
    static Controller controller;
    return tv.hasController ? &controller : nullptr;
}

int __dlog_print(log_id_t /*id*/, int priority, const char* /*tag*/, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    char line[4096];
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it is started above.
    const int length = std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    const std::lock_guard<std::mutex> lock(Tv::logMutex);
    const char* text = std::strstr(line, ") > "); // behind the place in the source, which the desk's own lines lack
    tv.log.push_back({priority, text == nullptr ? line : text + 4});
    return length;
}

int ui_app_main(int /*argc*/, char** /*argv*/, ui_app_lifecycle_callback_s* callbacks, void* userData)
{
    tv.application = *callbacks;
    tv.applicationData = userData;
    tv.whileTheLoopRuns();
    return tv.loopResult;
}

int ui_app_add_event_handler(app_event_handler_h* /*handler*/, app_event_type_e type, app_event_cb callback, void*)
{
    Did("handle event", std::to_string(type));
    tv.languageChanged = callback;
    return APP_ERROR_NONE;
}

// Requests are the desk's own. The linker redirects these here, so that they can fail and are counted.
// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    int __real_app_control_create(app_control_h* request);
    int __wrap_app_control_create(app_control_h* request)
    {
        if (tv.Fails("app_control_create"))
        {
            return APP_CONTROL_ERROR_OUT_OF_MEMORY;
        }
        ++tv.liveRequests;
        return __real_app_control_create(request);
    }

    int __real_app_control_destroy(app_control_h request);
    int __wrap_app_control_destroy(app_control_h request)
    {
        --tv.liveRequests;
        {
            const std::lock_guard<std::mutex> lock(Tv::logMutex);
            tv.linesBeforeDestroyed = tv.log.size();
        }
        return __real_app_control_destroy(request);
    }

    int __real_app_control_get_extra_data(app_control_h request, const char* key, char** value);
    int __wrap_app_control_get_extra_data(app_control_h request, const char* key, char** value)
    {
        *value = nullptr;
        return tv.Fails(key) ? APP_CONTROL_ERROR_NONE : __real_app_control_get_extra_data(request, key, value);
    }
}
// NOLINTEND(bugprone-reserved-identifier)

int app_control_send_launch_request(app_control_h request, app_control_reply_cb callback, void* userData)
{
    if (request == nullptr)
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    std::string launch = request->appId;
    for (const auto& [key, value] : request->data)
    {
        launch += ' ' + key + '=' + std::get<std::string>(value);
    }
    Did("launch", launch + (callback != nullptr || userData != nullptr ? " with reply" : ""));
    return Result("app_control_send_launch_request", APP_CONTROL_ERROR_APP_NOT_FOUND);
}

int app_context_manager_request_task(const char* task, const char* action)
{
    Did("task", std::string(task) + '|' + action);
    return -1; // nobody looks at it
}

int aul_app_is_running(const char* appId)
{
    return tv.runningApps.count(appId) != 0 ? 1 : 0;
}
int vconf_get_int(const char* key, int* value)
{
    return Read(tv.numbers, key, value);
}
int vconf_get_bool(const char* key, int* value)
{
    return Read(tv.numbers, key, value);
}
int system_info_get_custom_bool(const char* key, bool* value)
{
    return Read(tv.features, key, value);
}
int ua_UI_orientation_get(void)
{
    return tv.orientation;
}

char* vconf_get_str(const char* key)
{
    std::string value;
    return Read(tv.texts, key, &value) == 0 ? strdup(value.c_str()) : nullptr;
}

// The key router, which records who holds which key.

int KeyRouter_Initialize(wl_display*, wl_registry*, wl_seat*, unsigned int id)
{
    Did("router", std::to_string(id));
    return tv.Fails("KeyRouter_Initialize") ? 0 : 1;
}

void KeyRouter_Finalize(void)
{
    Did("router", "finalized");
}

void KeyRouter_Reset_KeyList(_KeyList* list)
{
    list->count = 0;
}

int KeyRouter_Add_Key(const char* name, int mode, _KeyList* list)
{
    list->keys[list->count++] = {name, mode};
    return 1;
}

int KeyRouter_Remove_Key(const char* name, int mode, _KeyList* list)
{
    const auto& last = list->keys[list->count - 1]; // the one that is being tried
    list->count -= std::strcmp(last.name, name) == 0 && last.mode == mode ? 1 : 0;
    return 1;
}

namespace
{

/** A key can be held exclusively or as the topmost; registering it too makes no difference. */
int OtherStrength(int mode)
{
    return mode == KEYROUTER_MODE_EXCLUSIVE ? KEYROUTER_MODE_TOPMOST
           : mode == KEYROUTER_MODE_TOPMOST ? KEYROUTER_MODE_EXCLUSIVE
                                            : 0;
}

/** Records the operation and applies it to the list's keys, up to the first one where it fails. */
template <typename Handle>
int ForEach(const char* verb, const _KeyList* list, Handle handle)
{
    const auto* const end = list->keys + list->count;
    std::string names;
    std::for_each(list->keys, end,
                  [&](const auto& key) { names += ' ' + std::string(key.name) + ':' + std::to_string(key.mode); });
    tv.deeds.push_back(verb + names);
    return std::all_of(list->keys, end, handle) ? 1 : 0;
}

bool Grab(const KeyRouter_Key& key)
{
    if (tv.Fails("KeyRouter_Set_KeyList") || tv.refusedKeys.count({key.name, key.mode}) != 0)
    {
        return false;
    }
    tv.heldKeys.erase({key.name, OtherStrength(key.mode)});
    tv.heldKeys.emplace(key.name, key.mode);
    return true;
}

bool Release(const KeyRouter_Key& key)
{
    if (tv.Fails("KeyRouter_UnSet_KeyList") || tv.heldKeys.count({key.name, OtherStrength(key.mode)}) != 0)
    {
        return false;
    }
    tv.heldKeys.erase({key.name, key.mode});
    return true;
}

} // namespace

int KeyRouter_Set_KeyList(wl_surface*, const _KeyList* list)
{
    return ForEach("grab", list, Grab);
}

int KeyRouter_UnSet_KeyList(wl_surface*, const _KeyList* list)
{
    return ForEach("release", list, Release);
}

// The toolkit assistant's start. Its widgets and its voice are in Assistant.cpp, so that a test can use the real ones.

void ea_init(void)
{
    Did("ea", "init");
}
