#pragma once

#include "BaseDisplay.h"

namespace VESKAR_APP
{

/** The plainest screen: the title "Test" and nothing else. */
class TestPopup : public BaseDisplay
{
public:
    /** The number has no effect. */
    TestPopup(IUserInteraction& userInteraction, int testId, Evas_Object* mainWindow);
    ~TestPopup() override = default;
};

} // namespace VESKAR_APP
