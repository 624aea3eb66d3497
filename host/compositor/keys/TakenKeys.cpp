#include "TakenKeys.h"

#include <chrono>
#include <utility>

namespace veskar
{

namespace
{

constexpr size_t MOST = 1000;

int64_t Now()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

void TakenKeys::Await(Told told)
{
    m_wanted = true;
    if (!m_taken.empty())
    {
        told(std::exchange(m_taken, {}));
        return;
    }
    m_told = std::move(told);
}

void TakenKeys::Pressed(const Key& key)
{
    if (m_wanted)
    {
        m_pressed[&key] = Now();
    }
}

void TakenKeys::Taken(uint32_t code, pid_t client)
{
    const Key* key = KeyByCode(code);
    const auto press = m_pressed.find(key);
    if (press == m_pressed.end() || m_taken.size() == MOST)
    {
        return;
    }
    m_taken.push_back({press->second, key, client});
    if (m_told)
    {
        std::exchange(m_told, nullptr)(std::exchange(m_taken, {}));
    }
}

} // namespace veskar
