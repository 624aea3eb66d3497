#include "TestPopup.h"

namespace VESKAR_APP
{

TestPopup::TestPopup(IUserInteraction& userInteraction, int /*testId*/, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, {}, POPUP_STYLE, false)
{
    t_SetTitle("Test");
}

} // namespace VESKAR_APP
