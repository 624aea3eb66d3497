#include "Request.h"

#include "ScreenKinds.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace veskar
{
namespace
{
constexpr auto s_signalType = "signal_type_key";
constexpr auto s_screenSignal = "signal_tvservice";
constexpr auto s_menuSignal = "signal_menu_pos";
constexpr auto s_sequenceSignal = "sequence";
constexpr auto s_screenType = "signal_tvservice_key";
constexpr auto s_closeType = "ui_type_close";
constexpr auto s_uiId = "ui_param_ui_id";
constexpr auto s_sourceId = "ui_param_source_id";
constexpr auto s_menuPosition = "menu_pos_key";
} // namespace

Request Request::Screen(const std::string& type)
{
    Request request;
    return request.Set(s_signalType, s_screenSignal).Set(s_screenType, type);
}

Request Request::Menu(const std::string& position)
{
    Request request;
    return request.Set(s_signalType, s_menuSignal).Set(s_menuPosition, position);
}

Request Request::Sequence()
{
    Request request;
    return request.Set(s_signalType, s_sequenceSignal);
}

Request Request::Raw(const Texts& words)
{
    Request request;
    for (const std::string& word : words)
    {
        const auto equals = word.find('=');
        const bool isList = equals != std::string::npos && equals >= 2 && word.compare(equals - 2, 2, "[]") == 0;
        const std::string key = word.substr(0, isList ? equals - 2 : equals);
        if (equals == std::string::npos || key.empty())
        {
            throw std::invalid_argument("\"" + word + "\" is neither KEY=VALUE nor KEY[]=VALUE");
        }
        const std::string text = word.substr(equals + 1);
        const auto place = request.m_values.try_emplace(key, isList ? Value{Texts{}} : Value{std::string{}}).first;
        if (std::holds_alternative<Texts>(place->second) != isList)
        {
            throw std::invalid_argument("\"" + key + "\" is given as a text and as a list");
        }
        if (isList)
        {
            std::get<Texts>(place->second).push_back(text);
            continue;
        }
        place->second = text;
    }
    return request;
}

Request& Request::Set(const std::string& key, const std::string& value)
{
    m_values[key] = value;
    return *this;
}

Request& Request::Set(const std::string& key, const Texts& values)
{
    m_values[key] = values;
    return *this;
}

Request& Request::Append(const std::string& key, const Texts& values)
{
    Texts& list = std::get<Texts>(m_values.at(key));
    list.insert(list.end(), values.begin(), values.end());
    return *this;
}

Request& Request::SetNumber(const std::string& key, int value)
{
    return Set(key, std::to_string(value));
}

Request& Request::SetFlag(const std::string& key, bool value)
{
    return Set(key, value ? "1" : "0");
}

Request& Request::SetIds(int uiId, std::uint8_t sourceId)
{
    if (m_Is(s_signalType, s_screenSignal))
    {
        SetNumber(s_uiId, uiId).SetNumber(s_sourceId, sourceId);
    }
    return *this;
}

bool Request::AsksForScreen() const
{
    return m_Is(s_signalType, s_screenSignal) && m_IsKnownKind() && m_Text(s_uiId) != nullptr &&
           m_Text(s_sourceId) != nullptr;
}

bool Request::AsksForClose() const
{
    return m_Is(s_signalType, s_screenSignal) && m_Is(s_screenType, s_closeType);
}

bool Request::IsOfUnknownKind() const
{
    return m_Is(s_signalType, s_screenSignal) && !m_IsKnownKind() && !AsksForClose();
}

bool Request::AsksForMenu() const
{
    return m_Is(s_signalType, s_menuSignal) && m_Text(s_menuPosition) != nullptr;
}

int Request::UiId() const
{
    return m_Number(s_uiId);
}

std::uint8_t Request::SourceId() const
{
    return static_cast<std::uint8_t>(m_Number(s_sourceId));
}

bool Request::m_IsKnownKind() const
{
    const auto& kinds = ScreenKinds();
    return std::any_of(kinds.begin(), kinds.end(),
                       [this](const ScreenKind& kind) { return m_Is(s_screenType, kind.uiType.c_str()); });
}

bool Request::m_Is(const char* key, const char* value) const
{
    const std::string* text = m_Text(key);
    return text != nullptr && *text == value;
}

const std::string* Request::m_Text(const char* key) const
{
    const auto found = m_values.find(key);
    return found == m_values.end() ? nullptr : std::get_if<std::string>(&found->second);
}

int Request::m_Number(const char* key) const
{
    const std::string* text = m_Text(key);
    int value = 0;
    if (text != nullptr)
    {
        std::istringstream{*text} >> value;
    }
    return value;
}
} // namespace veskar
