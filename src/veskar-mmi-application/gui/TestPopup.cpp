#include "TestPopup.h"

namespace VESKAR_APP
{

TestPopup::TestPopup(IUserInteraction& userInteraction, int /*testId*/, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, {}, "C_PopupBasic_WhiteBottom", false)
{
    t_SetTitle("Test");
}

} // namespace VESKAR_APP
