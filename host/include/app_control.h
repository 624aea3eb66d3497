/** A service request: named values, each one string or one array of strings, for one application. */
#pragma once

#ifdef __cplusplus
extern "C"
{
#endif

    typedef struct app_control_s* app_control_h;

    typedef enum
    {
        APP_CONTROL_ERROR_NONE = 0,
        APP_CONTROL_ERROR_INVALID_PARAMETER = -22,
        APP_CONTROL_ERROR_OUT_OF_MEMORY = -12,
        APP_CONTROL_ERROR_KEY_NOT_FOUND = -126,
        APP_CONTROL_ERROR_APP_NOT_FOUND = -17825759,
        APP_CONTROL_ERROR_LAUNCH_REJECTED = -17825757,
        APP_CONTROL_ERROR_INVALID_DATA_TYPE = -17825756
    } app_control_error_e;

    typedef enum
    {
        APP_CONTROL_RESULT_SUCCEEDED = 0,
        APP_CONTROL_RESULT_FAILED = -1
    } app_control_result_e;

    typedef void (*app_control_reply_cb)(app_control_h request, app_control_h reply, app_control_result_e result,
                                         void* userData);

    /** The caller owns the new request and gives it to app_control_destroy. */
    int app_control_create(app_control_h* request);
    int app_control_destroy(app_control_h request);

    /** Strings and arrays are copied. A key that is set again takes the new value, whatever kind the old one had. */
    int app_control_set_app_id(app_control_h request, const char* appId);
    int app_control_add_extra_data(app_control_h request, const char* key, const char* value);
    int app_control_add_extra_data_array(app_control_h request, const char* key, const char* values[], int length);

    /**
     * The caller frees what it gets: the string, or each element and then the array. KEY_NOT_FOUND without the key,
     * INVALID_DATA_TYPE when the key holds the other kind; the output is not touched then.
     */
    int app_control_get_extra_data(app_control_h request, const char* key, char** value);
    int app_control_get_extra_data_array(app_control_h request, const char* key, char*** values, int* length);

    /**
     * Sends the request to the application that it names, starting it where it does not run. Returns once the request
     * is on its way, without waiting for the other side: APP_NOT_FOUND when nobody has that id, LAUNCH_REJECTED when it
     * cannot be sent. `callback` may be null.
     */
    int app_control_send_launch_request(app_control_h request, app_control_reply_cb callback, void* userData);

#ifdef __cplusplus
}
#endif
