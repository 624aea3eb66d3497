/**
 * The screen of this program, as the desk's parts in it tell each other: the toolkit's side sees it come and go, the
 * framework's side knows which request it belongs to, and the key router's side needs both.
 */
#pragma once

#include "KeyGuard.h"

#include <functional>
#include <set>
#include <string>

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

        /** The names of the keys that the program holds at the key router. */
        virtual std::set<std::string> HeldKeys() const = 0;
    };

    /** What the request for a screen says of it. */
    struct Request
    {
        int uiId = 0;
        int sourceId = 0;
        std::string kind = {};
        std::string title = {};
    };

    /** Hears of screens that the viewer can see. */
    class Audience
    {
    public:
        virtual ~Audience() = default;
        virtual void Shown(const Request& screen) = 0;
        /** Also when another screen replaces it. */
        virtual void Closed(const Request& screen) = 0;
    };

    /** Never destroyed. */
    static OwnScreen& Instance();

    static KeyGuard::Time Now();

    KeyGuard& Keys() { return m_keys; }

    /** The request that is being handled. A screen that comes is that of the last one, or is updated by it. */
    void NoteRequest(Request request);
    /** What the voice guide was handed last. */
    void NoteText(std::string text) { m_text = std::move(text); }

    void Comes();
    void IsDrawn();
    void Goes();

    /** Null while there is no screen that the viewer can see. */
    const Request* Shown() const { return m_shown ? &m_current : nullptr; }
    const std::string& Text() const { return m_text; }
    std::set<std::string> HeldKeys() const;

    /** Null for none. */
    void SetAudience(Audience* audience) { m_audience = audience; }

    /** `display` is told of the screen now, and until another replaces it; null for none. */
    void SetDisplay(Display* display);

private:
    void m_Reached(int screen);
    void m_Set(bool shown);
    void m_TellDisplay();

    KeyGuard m_keys;
    Display* m_display = nullptr;
    Audience* m_audience = nullptr;
    int m_screen = 0; // counts them
    Request m_requested;
    Request m_current; // of the screen that has come
    bool m_shown = false;
    std::string m_text;
};

} // namespace veskar
