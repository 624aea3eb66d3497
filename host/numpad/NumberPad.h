/** The number pad: while it is shown, keys move through it and type its digits into the screen below. */
#pragma once

#include "FreeWith.h"
#include "HeldKeys.h"
#include "KeyGrid.h"
#include "PadWindow.h"

#include <Ecore.h>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace veskar
{

/** The pad is shown for the lifetime of this object. Main thread only, while the toolkit is initialised. */
class NumberPad
{
public:
    /**
     * `window` must outlive the pad. `unwanted` is called, from one of the toolkit's callbacks, when the viewer closes
     * the pad.
     */
    NumberPad(bool withBackSpace, PadWindow& window, std::function<void()> unwanted);
    ~NumberPad();

    NumberPad(const NumberPad&) = delete;
    NumberPad& operator=(const NumberPad&) = delete;

private:
    using Handler = std::unique_ptr<Ecore_Event_Handler, FreeWith<ecore_event_handler_del>>;

    static Eina_Bool s_OnKeyDown(void* data, int type, void* event);
    static Eina_Bool s_OnKeyUp(void* data, int type, void* event);

    void m_Appeared();
    void m_KeyDown(std::string_view key);
    void m_Move(Direction direction);
    void m_TypeCurrent();

    std::function<void()> m_unwanted;
    KeyGrid m_keys;
    PadWindow& m_window;
    std::optional<HeldKeys> m_heldKeys; // once the window is on the screen
    Handler m_keyDown;
    Handler m_keyUp;
    bool m_returnIsDown = false;
};

} // namespace veskar
