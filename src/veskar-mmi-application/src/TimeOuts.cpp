#include "TimeOuts.h"

namespace VESKAR_APP
{

const unsigned int VISIBLE_TIMEOUT = 30000;
const unsigned int IDLE_TIMEOUT = 2000;

} // namespace VESKAR_APP
