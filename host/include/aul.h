/** The status of the TV's applications. */
#pragma once

#ifdef __cplusplus
extern "C"
{
#endif

    /** 1 when the application runs, 0 when it does not. */
    int aul_app_is_running(const char* appId);

#ifdef __cplusplus
}
#endif
