#include "Request.h"

#include "ScreenKinds.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace veskar
{

namespace
{

constexpr auto SIGNAL_TYPE = "signal_type_key";
constexpr auto SCREEN_SIGNAL = "signal_tvservice";
constexpr auto MENU_SIGNAL = "signal_menu_pos";
constexpr auto SEQUENCE_SIGNAL = "sequence";
constexpr auto SCREEN_TYPE = "signal_tvservice_key";
constexpr auto CLOSE_TYPE = "ui_type_close";
constexpr auto UI_ID = "ui_param_ui_id";
constexpr auto SOURCE_ID = "ui_param_source_id";
constexpr auto MENU_POSITION = "menu_pos_key";
constexpr auto ENTRIES = "ui_param_entries";
constexpr auto HEADER = "ui_param_header";

} // namespace

Request Request::Screen(const std::string& type)
{
    Request request;
    return request.Set(SIGNAL_TYPE, SCREEN_SIGNAL).Set(SCREEN_TYPE, type);
}

Request Request::Menu(const std::string& position)
{
    Request request;
    return request.Set(SIGNAL_TYPE, MENU_SIGNAL).Set(MENU_POSITION, position);
}

Request Request::Sequence()
{
    Request request;
    return request.Set(SIGNAL_TYPE, SEQUENCE_SIGNAL);
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
    if (m_Is(SIGNAL_TYPE, SCREEN_SIGNAL))
    {
        SetNumber(UI_ID, uiId).SetNumber(SOURCE_ID, sourceId);
    }
    return *this;
}

const std::string* Request::Text(const std::string& key) const
{
    const auto found = m_values.find(key);
    return found == m_values.end() ? nullptr : std::get_if<std::string>(&found->second);
}

Texts Request::List(const std::string& key) const
{
    const auto found = m_values.find(key);
    const Texts* list = found == m_values.end() ? nullptr : std::get_if<Texts>(&found->second);
    return list != nullptr ? *list : Texts{};
}

bool Request::HasHeader() const
{
    return Number(HEADER) != 0 && !List(ENTRIES).empty();
}

Texts Request::Rows() const
{
    Texts rows = List(ENTRIES);
    if (HasHeader())
    {
        rows.erase(rows.begin());
    }
    return rows;
}

int Request::Number(const std::string& key) const
{
    const std::string* text = Text(key);
    int value = 0;
    if (text != nullptr)
    {
        std::istringstream{*text} >> value;
    }
    return value;
}

bool Request::AsksForScreen() const
{
    return m_Is(SIGNAL_TYPE, SCREEN_SIGNAL) && m_IsKnownKind() && Text(UI_ID) != nullptr && Text(SOURCE_ID) != nullptr;
}

bool Request::AsksFor(const std::string& type) const
{
    return m_Is(SIGNAL_TYPE, SCREEN_SIGNAL) && m_Is(SCREEN_TYPE, type);
}

bool Request::AsksForClose() const
{
    return AsksFor(CLOSE_TYPE);
}

bool Request::IsOfUnknownKind() const
{
    return m_Is(SIGNAL_TYPE, SCREEN_SIGNAL) && !m_IsKnownKind() && !AsksForClose();
}

bool Request::AsksForMenu() const
{
    return m_Is(SIGNAL_TYPE, MENU_SIGNAL) && Text(MENU_POSITION) != nullptr;
}

int Request::UiId() const
{
    return Number(UI_ID);
}

std::uint8_t Request::SourceId() const
{
    return static_cast<std::uint8_t>(Number(SOURCE_ID));
}

bool Request::m_IsKnownKind() const
{
    const auto& kinds = ScreenKinds();
    return std::any_of(kinds.begin(), kinds.end(),
                       [this](const ScreenKind& kind) { return m_Is(SCREEN_TYPE, kind.uiType); });
}

bool Request::m_Is(const char* key, const std::string& value) const
{
    const std::string* text = Text(key);
    return text != nullptr && *text == value;
}

} // namespace veskar
