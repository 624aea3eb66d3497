#pragma once

#include <memory>
#include <string>
#include <vector>

#include <key_router.h>

namespace veskar
{
class RouterBinding;
}
struct WaylandGlobals;

/**
 * A client of the compositor with one fullscreen window, without a toolkit: it gets exactly what the compositor sends.
 * Its destruction looks like a crash of the client.
 */
class WaylandWindow
{
public:
    WaylandWindow();
    ~WaylandWindow();

    WaylandWindow(const WaylandWindow&) = delete;
    WaylandWindow& operator=(const WaylandWindow&) = delete;

    /** The first half of showing a window: the compositor knows it, and there is no picture yet. */
    void BeginToShow();
    /** The second half. Returns when the compositor has the window on the screen, above all others. */
    void Draw();
    void Show();

    /** With the key router's client library. */
    bool Grab(const char* key, int mode);
    bool Ungrab(const char* key, int mode);
    /** Ends the client library's binding; the window stays. */
    void Unbind();

    bool HasFocus();

    /** The keys that came since the last call, such as "Up down", "Up up". */
    std::vector<std::string> Heard();

private:
    std::unique_ptr<WaylandGlobals> m_globals;
    std::unique_ptr<veskar::RouterBinding> m_router;
};
