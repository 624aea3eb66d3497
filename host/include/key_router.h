/**
 * The compositor's key router: who hears which key of the remote control.
 *
 * All functions run on the main thread. They return non-zero on success and 0 on failure, as the platform's do.
 */
#pragma once

struct wl_display;
struct wl_registry;
struct wl_seat;
struct wl_surface;

#ifdef __cplusplus
extern "C"
{
#endif

/** The name of the router's Wayland global. */
#define KEYROUTER_INTERFACE "tizen_keyrouter"

    enum KeyRouter_Mode
    {
        KEYROUTER_MODE_TOPMOST = 2,
        KEYROUTER_MODE_EXCLUSIVE = 4,
        KEYROUTER_MODE_REGISTERED = 5
    };

/** More than the longest group of keys that is set in one list. */
#define KEYROUTER_LIST_CAPACITY 64

    typedef struct
    {
        /** Borrowed: the name lives longer than the list. */
        const char* name;
        int mode;
    } KeyRouter_Key;

    /** Owned by the caller; KeyRouter_Reset_KeyList makes it usable. */
    typedef struct _KeyList
    {
        int count;
        KeyRouter_Key keys[KEYROUTER_LIST_CAPACITY];
    } _KeyList;

    /** Binds the router, `id` being its global's name in `registry`. A second call replaces the first. */
    int KeyRouter_Initialize(struct wl_display* display, struct wl_registry* registry, struct wl_seat* seat,
                             unsigned int id);

    /** Gives back every key that is still held. */
    void KeyRouter_Finalize(void);

    void KeyRouter_Reset_KeyList(_KeyList* list);

    /** Fails when the list is full, or holds no such entry. */
    int KeyRouter_Add_Key(const char* name, int mode, _KeyList* list);
    int KeyRouter_Remove_Key(const char* name, int mode, _KeyList* list);

    /** Grabs every key of the list for the surface; fails when one of them is refused (the others stay grabbed). */
    int KeyRouter_Set_KeyList(struct wl_surface* surface, const _KeyList* list);

    /**
     * Releases them. A key that is not held counts as released. Exclusive and topmost are two strengths of one grab:
     * asked to release one of them of a key that is held in the other, it fails and the key stays held. A registration
     * stands beside. The compositor hears of it with the next grab, or when the main loop goes on.
     */
    int KeyRouter_UnSet_KeyList(struct wl_surface* surface, const _KeyList* list);

#ifdef __cplusplus
}
#endif
