/** The settings store. Keys are paths: "db/menu_widget/language" is kept, "memory/..." is lost with the power. */
#pragma once

#ifdef __cplusplus
extern "C"
{
#endif

    /** 0 when read, negative when the key is unset or does not hold a whole number; the output is not touched then. */
    int vconf_get_int(const char* key, int* value);
    int vconf_get_bool(const char* key, int* value);

    /** A copy that the caller frees; null when the key is unset. */
    char* vconf_get_str(const char* key);

#ifdef __cplusplus
}
#endif
