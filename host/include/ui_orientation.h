/** The direction of the TV's user interface. */
#pragma once

#ifdef __cplusplus
extern "C"
{
#endif

    /** 1 for right-to-left, any other value for left-to-right. */
    int ua_UI_orientation_get(void);

#ifdef __cplusplus
}
#endif
