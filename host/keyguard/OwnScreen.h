/**
 * The screen of this program, as the desk's parts in it tell each other: the toolkit's side sees it come and go, the
 * framework's side knows which request it belongs to, and the key router's side needs both.
 */
#pragma once

#include "KeyGuard.h"

#include <functional>

namespace veskar
{

/** Main thread only. */
class OwnScreen
{
public:
    /** The way to the compositor. */
    class Display
    {
    public:
        virtual ~Display() = default;

        /** `shown` is false while there is no screen, and until its first frame can be seen. */
        virtual void Changed(bool shown, int uiId) = 0;

        /**
         * Calls `reached` once when the compositor has every frame that was drawn until now, and every key that it sent
         * before has been handled. Not at all when a newer call of this has replaced it.
         */
        virtual void AwaitFrame(std::function<void()> reached) = 0;
    };

    /** Never destroyed. */
    static OwnScreen& Instance();

    static KeyGuard::Time Now();

    KeyGuard& Keys() { return m_keys; }

    /** The id in the request that is being handled. A screen that comes has the last one. */
    void NoteRequest(int uiId) { m_requested = uiId; }

    void Comes();
    void IsDrawn();
    void Goes();

    /** `display` is told of the screen now, and until another replaces it; null for none. */
    void SetDisplay(Display* display);

private:
    void m_Reached(int screen);
    void m_Set(bool shown, int uiId);

    KeyGuard m_keys;
    Display* m_display = nullptr;
    int m_screen = 0; // counts them
    int m_requested = 0;
    int m_uiId = 0;
    bool m_shown = false;
};

} // namespace veskar
