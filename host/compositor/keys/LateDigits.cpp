#include "LateDigits.h"

#include <string_view>

namespace veskar
{

void LateDigits::Released(const Key& key, Time now)
{
    const std::string_view name = key.name;
    if (name.size() == 1 && name.front() >= '0' && name.front() <= '9')
    {
        m_released[&key] = now;
    }
}

bool LateDigits::Holds(const Key& key, Time now) const
{
    const auto released = m_released.find(&key);
    return released != m_released.end() && now - released->second < HELD;
}

} // namespace veskar
