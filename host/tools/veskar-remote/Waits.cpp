#include "Waits.h"

#include "ScreenText.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <thread>

namespace veskar
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds INTERVAL{20};

std::string Seconds(std::chrono::milliseconds time)
{
    std::string text = std::to_string(static_cast<double>(time.count()) / 1000);
    text.erase(text.find_last_not_of('0') + 1);
    return (text.back() == '.' ? text.substr(0, text.size() - 1) : text) + " s";
}

std::string Named(std::optional<int> uiId)
{
    return uiId ? "screen " + std::to_string(*uiId) : "screen";
}

std::string Content(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

Waits::Waits(RemoteClient& remote, std::chrono::milliseconds patience) : m_remote(remote), m_patience(patience)
{
    m_remote.SetPatience(patience);
}

template <typename Done>
void Waits::m_Until(const std::string& what, Done done)
{
    const auto end = Clock::now() + m_patience;
    while (!done())
    {
        if (Clock::now() >= end)
        {
            throw InVain(what + " within " + Seconds(m_patience));
        }
        std::this_thread::sleep_for(INTERVAL);
    }
}

void Waits::Press(const std::string& key)
{
    try
    {
        m_Until("nobody took " + key, [&] { return m_remote.Ask("offer " + key).front() == "taken"; });
    }
    catch (const RemoteSilent&)
    {
        throw InVain("who got " + key + " has not looked at it within " + Seconds(m_patience));
    }
}

void Waits::Shown(std::optional<int> uiId)
{
    m_Until("no " + Named(uiId), [&] { return m_IsShown(uiId); });
}

void Waits::Text(const std::regex& pattern, std::optional<int> uiId)
{
    ScreenText screen;
    std::optional<std::string> text;
    const auto says = [&]
    {
        text = screen.Now();
        return text && std::regex_search(*text, pattern) && m_IsShown(uiId);
    };
    try
    {
        m_Until("no " + Named(uiId) + " that says this", says);
    }
    catch (const InVain& trouble)
    {
        throw InVain(trouble.what() + (text ? "; what was said last is \"" + *text + "\"" : std::string()));
    }
}

void Waits::Gone(std::optional<int> uiId)
{
    m_Until("the " + Named(uiId) + " did not go", [&] { return !m_IsShown(uiId); });
}

bool Waits::m_IsShown(std::optional<int> uiId)
{
    const std::vector<std::string> screens = m_remote.Ask("screens");
    return std::any_of(screens.begin(), screens.end(),
                       [&](const std::string& screen)
                       { return !uiId || screen.substr(0, screen.find(' ')) == std::to_string(*uiId); });
}

void Waits::Still()
{
    // Longer than a frame that is on its way, and than any pause within a motion. On a busy machine a frame may take
    // any time; but then so does a picture of it.
    constexpr std::chrono::milliseconds STILL{300};
    constexpr int PICTURES = 6;
    const TemporaryFolder folder;
    const std::string path = folder.Path() + "/screen.png";
    std::string last;
    int same = 0;
    auto since = Clock::now();
    m_Until("the display did not come to rest",
            [&]
            {
                m_remote.Ask("shot " + path);
                std::string next = Content(path);
                if (next != last)
                {
                    last = std::move(next);
                    since = Clock::now();
                    same = 0;
                }
                ++same;
                return same >= PICTURES && Clock::now() - since >= STILL;
            });
}

} // namespace veskar
