/** The platform's addition to the toolkit's accessibility: speech that cannot be missed. */
#pragma once

#ifdef __cplusplus
extern "C"
{
#endif

    /** Speaks `text` at once, cutting short what is being spoken. Markup is not read out. */
    void elm_access_force_say(const char* text);

#ifdef __cplusplus
}
#endif
