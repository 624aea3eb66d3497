/** The TV's fonts. */
#pragma once

#include <Ecore.h>

namespace veskar
{

/** While it exists, and the main loop runs, it logs once which families of the TV are not installed. */
class FontCheck
{
public:
    FontCheck();
    /** Looks now, if it has not done so yet. */
    ~FontCheck();

    FontCheck(const FontCheck&) = delete;
    FontCheck& operator=(const FontCheck&) = delete;

private:
    static Eina_Bool s_OnTime(void* data);

    Ecore_Timer* m_timer;
};

} // namespace veskar
