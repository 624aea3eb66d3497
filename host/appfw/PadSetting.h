/**
 * Keeps the setting that says whether the number pad is on the screen right for a pad that was killed: nobody is asked
 * to show a pad that is said to be there already.
 */
#pragma once

#include "BusNames.h"

#include <Ecore.h>

namespace veskar
{

/** Resets the setting whenever the pad's name has no owner; also at the start. Main thread only. */
class PadSetting
{
public:
    /** `names` must outlive this object. */
    explicit PadSetting(BusNames& names);
    ~PadSetting();

    PadSetting(const PadSetting&) = delete;
    PadSetting& operator=(const PadSetting&) = delete;

private:
    static void s_Check(void* self);

    BusNames& m_names;
    Ecore_Job* m_check = nullptr;
};

} // namespace veskar
