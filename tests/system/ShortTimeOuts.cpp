#include "TimeOuts.h"

namespace VESKAR_APP
{

const unsigned int VISIBLE_TIMEOUT = 2500;
const unsigned int IDLE_TIMEOUT = 250;

} // namespace VESKAR_APP
