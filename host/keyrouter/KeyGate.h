/**
 * Stands between the compositor's keys and the program: what the guard holds back reaches none of the program's
 * handlers. It decides when a key's turn has come, because the keys before it may have changed the screen.
 */
#pragma once

#include <Ecore.h>
#include <cstdint>
#include <functional>

namespace veskar
{

class KeyGate
{
public:
    /** Called for each press and repeat; `code` as the Wayland keyboard sends it. */
    using Decided = std::function<void(uint32_t code, bool taken)>;

    explicit KeyGate(Decided decided);
    ~KeyGate();

    KeyGate(const KeyGate&) = delete;
    KeyGate& operator=(const KeyGate&) = delete;

private:
    static Eina_Bool s_OnDown(void* self, int type, void* event);
    static Eina_Bool s_OnUp(void* self, int type, void* event);

    Decided m_decided;
    Ecore_Event_Handler* m_down;
    Ecore_Event_Handler* m_up;
};

} // namespace veskar
