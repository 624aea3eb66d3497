#include "Tv.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

Tv tv;

Texts Tv::Did(const std::string& verb) const
{
    Texts found;
    std::copy_if(deeds.begin(), deeds.end(), std::back_inserter(found),
                 [&](const std::string& deed) { return deed == verb || deed.rfind(verb + ' ', 0) == 0; });
    return found;
}

Texts Tv::DeedsByKeyGroup() const
{
    Texts found;
    for (const std::string& deed : deeds)
    {
        const std::size_t blank = deed.find(' ');
        const std::string verb = deed.substr(0, blank);
        std::string group = deed;
        if (verb == "grab" || verb == "release")
        {
            const std::string keys = deed.substr(blank + 1);
            const bool list = keys.find(' ') != std::string::npos;
            const char* name = list && keys.find("Return") != std::string::npos ? "navigation"
                               : list                                           ? "PVR"
                               : keys.rfind("XF86Exit:", 0) == 0                ? "exit"
                               : keys.rfind("XF86", 0) == 0                     ? "channel"
                                                                                : "number";
            group = verb + ' ' + name;
        }
        if (found.empty() || found.back() != group)
        {
            found.push_back(group);
        }
    }
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
    const std::string before = colours.at(priority);
    const std::string after = before.empty() ? "" : "\x1b[0m";
    Texts found;
    const std::lock_guard<std::mutex> lock(logMutex);
    for (const LogLine& line : log)
    {
        // A line in another colour than its level's is kept whole, so that it matches nothing.
        const bool coloured = line.text.rfind(before, 0) == 0 && line.text.size() >= before.size() + after.size();
        if (line.priority == priority && line.text != before + after)
        {
            found.push_back(coloured ? line.text.substr(before.size(), line.text.size() - before.size() - after.size())
                                     : line.text);
        }
    }
    return found;
}

Request::Request(std::initializer_list<std::pair<const char*, Value>> values)
{
    app_control_create(&m_handle);
    for (const auto& [key, value] : values)
    {
        if (const auto* text = std::get_if<std::string>(&value))
        {
            app_control_add_extra_data(m_handle, key, text->c_str());
            continue;
        }
        std::vector<const char*> elements;
        for (const std::string& element : std::get<Texts>(value))
        {
            elements.push_back(element.c_str());
        }
        app_control_add_extra_data_array(m_handle, key, elements.data(), static_cast<int>(elements.size()));
    }
}

std::string Request::Text(const char* key) const
{
    char* value = nullptr;
    app_control_get_extra_data(m_handle, key, &value);
    const std::unique_ptr<char, decltype(&std::free)> owner(value, std::free);
    return value == nullptr ? "(unset)" : value;
}
