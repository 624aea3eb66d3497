#include "Tv.h"

#include <algorithm>

Tv tv;

Texts operator+(Texts first, const Texts& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Texts Tv::Did(const std::string& verb) const
{
    Texts found;
    std::copy_if(deeds.begin(), deeds.end(), std::back_inserter(found),
                 [&](const std::string& deed) { return (deed + ' ').rfind(verb + ' ', 0) == 0; });
    return found;
}

Texts Tv::DeedsByKeyGroup() const
{
    constexpr std::pair<const char*, const char*> GROUPS[] = {{" XF86Exit:5", " navigation"},
                                                              {" XF86AudioRewind:5", " PVR"},
                                                              {" XF86Exit", " exit"},
                                                              {" XF86", " channel"},
                                                              {" ", " number"}};
    Texts found;
    for (std::string deed : deeds)
    {
        const std::string verb = deed.substr(0, deed.find(' '));
        const auto* group = std::find_if(std::begin(GROUPS), std::end(GROUPS),
                                         [&](const auto& keys) { return deed.rfind(verb + keys.first, 0) == 0; });
        if (verb == "grab" || verb == "release")
        {
            deed = verb + group->second;
        }
        found.push_back(deed);
    }
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

void Tv::Forget()
{
    const std::lock_guard<std::mutex> lock(logMutex);
    deeds.clear();
    log.clear();
}

bool Tv::Logged(int priority, const std::string& text) const
{
    const Texts lines = Log(priority);
    return std::find(lines.begin(), lines.end(), text) != lines.end();
}

Texts Tv::Log(int priority) const
{
    const std::map<int, std::string> colours{
        {DLOG_DEBUG, ""}, {DLOG_INFO, "\x1b[32m"}, {DLOG_WARN, "\x1b[33m"}, {DLOG_ERROR, "\x1b[31m"}};
    const std::string& before = colours.at(priority);
    const std::string after = before.empty() ? "" : "\x1b[0m";
    Texts found;
    const std::lock_guard<std::mutex> lock(logMutex);
    for (const LogLine& line : log)
    {
        // A line in another colour than its level's keeps its colour codes, so that no test matches it.
        const bool coloured = line.text.rfind(before, 0) == 0 && line.text.size() >= before.size() + after.size();
        if (line.priority == priority && line.text != before + after)
        {
            found.push_back(coloured ? line.text.substr(before.size(), line.text.size() - before.size() - after.size())
                                     : line.text);
        }
    }
    return found;
}
