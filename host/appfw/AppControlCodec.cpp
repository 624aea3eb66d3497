#include "AppControlCodec.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "BusName.h"
#include "CString.h"
#include "TvBus.h"

namespace veskar
{
namespace
{

using Refusal = std::optional<std::string>;

/** A key in an error text: a long one is cut, at the beginning of a character. */
std::string Quoted(const char* key)
{
    constexpr size_t LONGEST = 100;
    size_t length = strlen(key);
    if (length <= LONGEST)
    {
        return "\"" + std::string(key) + "\"";
    }
    for (length = LONGEST; (key[length] & 0xC0) == 0x80; --length)
    {
    }
    return "\"" + std::string(key, length) + "...\"";
}

Refusal Refuse(const char* key, const std::string& why)
{
    return "the value of " + Quoted(key) + " " + why;
}

/** How many characters of `text` are one of `kinds`. */
size_t Count(std::string_view text, std::string_view kinds)
{
    return std::count_if(text.begin(), text.end(),
                         [kinds](char character) { return kinds.find(character) != std::string_view::npos; });
}

/** Reads one request's values and counts what they take. */
class Decoder
{
public:
    explicit Decoder(app_control_s& request) : m_request(request) {}

    Refusal Read(const Eldbus_Message* call)
    {
        Eldbus_Message_Iter* entries = nullptr;
        if (!eldbus_message_arguments_get(call, "a{sv}", &entries))
        {
            return "the arguments are not a{sv}";
        }
        Eldbus_Message_Iter* entry = nullptr;
        while (eldbus_message_iter_get_and_next(entries, 'e', &entry))
        {
            if (auto refusal = m_ReadEntry(entry))
            {
                return refusal;
            }
        }
        return std::nullopt;
    }

private:
    Refusal m_ReadEntry(Eldbus_Message_Iter* entry)
    {
        const char* key = nullptr;
        Eldbus_Message_Iter* value = nullptr;
        if (!eldbus_message_iter_arguments_get(entry, "sv", &key, &value))
        {
            return "the arguments are not a{sv}";
        }
        if (strlen(key) > LONGEST_TEXT)
        {
            return "the key " + Quoted(key) + " is too long";
        }
        if (++m_keys > MOST_ELEMENTS)
        {
            return "the key " + Quoted(key) + " comes after " + std::to_string(MOST_ELEMENTS) + " others";
        }
        if (auto refusal = m_Count(key, key))
        {
            return refusal;
        }
        const CString type(eldbus_message_iter_signature_get(value));
        if (strcmp(type.get(), "s") == 0)
        {
            return m_ReadText(key, value);
        }
        if (strcmp(type.get(), "as") == 0)
        {
            return m_ReadArray(key, value);
        }
        return Refuse(key, std::string("is of type ") + type.get() + ", neither a string nor an array of strings");
    }

    Refusal m_ReadText(const char* key, Eldbus_Message_Iter* value)
    {
        const char* text = nullptr;
        if (!eldbus_message_iter_arguments_get(value, "s", &text))
        {
            return Refuse(key, "cannot be read");
        }
        if (auto refusal = m_Count(key, text))
        {
            return refusal;
        }
        m_request.data.insert_or_assign(key, std::string(text));
        return std::nullopt;
    }

    Refusal m_ReadArray(const char* key, Eldbus_Message_Iter* value)
    {
        Eldbus_Message_Iter* elements = nullptr;
        if (!eldbus_message_iter_arguments_get(value, "as", &elements))
        {
            return Refuse(key, "cannot be read");
        }
        app_control_s::Array array;
        const char* element = nullptr;
        while (eldbus_message_iter_get_and_next(elements, 's', &element))
        {
            if (array.size() == MOST_ELEMENTS)
            {
                return Refuse(key, "has more than " + std::to_string(MOST_ELEMENTS) + " elements");
            }
            if (auto refusal = m_Count(key, element))
            {
                return refusal;
            }
            if (Count(element, "\t") > MOST_TABS_OF_ELEMENT)
            {
                return Refuse(key, "has an element of more than " + std::to_string(MOST_TABS_OF_ELEMENT) + " tabs");
            }
            array.emplace_back(element);
        }
        m_request.data.insert_or_assign(key, std::move(array));
        return std::nullopt;
    }

    Refusal m_Count(const char* key, const char* text)
    {
        const size_t length = strlen(text);
        if (length > LONGEST_TEXT)
        {
            return Refuse(key, "holds a string of " + std::to_string(length) + " bytes, more than " +
                                   std::to_string(LONGEST_TEXT));
        }
        if (Count(text, "\n\t") > MOST_BREAKS)
        {
            return Refuse(key, "holds a string of more than " + std::to_string(MOST_BREAKS) + " line breaks and tabs");
        }
        m_bytes += std::max(length, SMALLEST_TEXT);
        if (m_bytes > LARGEST_REQUEST)
        {
            return Quoted(key) + " brings the request over " + std::to_string(LARGEST_REQUEST) + " bytes";
        }
        return std::nullopt;
    }

    app_control_s& m_request;
    size_t m_keys = 0;
    size_t m_bytes = 0;
};

bool IsFit(const app_control_s::Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
    {
        return IsBusText(*text);
    }
    const auto& array = std::get<app_control_s::Array>(value);
    return std::all_of(array.begin(), array.end(), IsBusText);
}

void AppendText(Eldbus_Message_Iter* entry, const std::string& text)
{
    auto* variant = eldbus_message_iter_container_new(entry, 'v', "s");
    eldbus_message_iter_basic_append(variant, 's', text.c_str());
    eldbus_message_iter_container_close(entry, variant);
}

void AppendArray(Eldbus_Message_Iter* entry, const app_control_s::Array& array)
{
    auto* variant = eldbus_message_iter_container_new(entry, 'v', "as");
    auto* elements = eldbus_message_iter_container_new(variant, 'a', "s");
    for (const auto& text : array)
    {
        eldbus_message_iter_basic_append(elements, 's', text.c_str());
    }
    eldbus_message_iter_container_close(variant, elements);
    eldbus_message_iter_container_close(entry, variant);
}

void AppendEntry(Eldbus_Message_Iter* entries, const std::string& key, const app_control_s::Value& value)
{
    Eldbus_Message_Iter* entry = nullptr;
    eldbus_message_iter_arguments_append(entries, "{sv}", &entry);
    eldbus_message_iter_basic_append(entry, 's', key.c_str());
    if (const auto* text = std::get_if<std::string>(&value))
    {
        AppendText(entry, *text);
    }
    else
    {
        AppendArray(entry, std::get<app_control_s::Array>(value));
    }
    eldbus_message_iter_container_close(entries, entry);
}

} // namespace

std::optional<std::string> DecodeAppControl(const Eldbus_Message* call, app_control_s& request)
{
    return Decoder(request).Read(call);
}

BusMessage EncodeAppControl(const std::string& appId, const std::string& busName, const app_control_s& request)
{
    const bool fit = std::all_of(request.data.begin(), request.data.end(),
                                 [](const auto& entry) { return IsBusText(entry.first) && IsFit(entry.second); });
    if (!fit || !IsApplicationId(appId.c_str()))
    {
        return nullptr;
    }
    auto call = NewCall(busName, PathOf(appId), Applications::INTERFACE, Applications::APP_CONTROL);
    auto* arguments = eldbus_message_iter_get(call.get());
    auto* entries = eldbus_message_iter_container_new(arguments, 'a', "{sv}");
    for (const auto& [key, value] : request.data)
    {
        AppendEntry(entries, key, value);
    }
    eldbus_message_iter_container_close(arguments, entries);
    return call;
}

} // namespace veskar
