#pragma once

namespace VESKAR_APP
{

class IWindowManager;

/**
 * Shows one of the sample screens, 0 to 22, through the window manager's own operations, with UI id 0 and source id 0.
 * False for any other number and for a screen that could not be shown.
 */
bool ShowTestCase(IWindowManager& windowManager, int testId);

} // namespace VESKAR_APP
