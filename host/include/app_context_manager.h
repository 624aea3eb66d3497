/** The TV's context manager, which starts and stops its other applications' tasks. */
#pragma once

#ifdef __cplusplus
extern "C"
{
#endif

    /** Asks for `action` ("stop") on `task`; 0 when the request is on its way, negative otherwise. Does not wait. */
    int app_context_manager_request_task(const char* task, const char* action);

#ifdef __cplusplus
}
#endif
