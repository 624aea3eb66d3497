/** A service request with the keys that the application knows, built without a bus. */
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace veskar
{
using Texts = std::vector<std::string>;

class Request
{
public:
    using Value = std::variant<std::string, Texts>;

    /** A screen of `type`, for example "ui_type_message", or "ui_type_close". SetIds sets its ids. */
    static Request Screen(const std::string& type);
    static Request Menu(const std::string& position);
    static Request Sequence();
    /**
     * KEY=VALUE sets a text, KEY[]=VALUE appends to a list of texts; if a text is set twice, the last one counts.
     * Throws std::invalid_argument for a word that is neither, and for a key with a text and a list.
     */
    static Request Raw(const Texts& words);

    Request& Set(const std::string& key, const std::string& value);
    Request& Set(const std::string& key, const Texts& values);
    /** Appends to a list that exists. */
    Request& Append(const std::string& key, const Texts& values);
    Request& SetNumber(const std::string& key, int value);
    Request& SetFlag(const std::string& key, bool value);
    /** Of a screen or its close; does nothing to other requests, which have none. */
    Request& SetIds(int uiId, std::uint8_t sourceId);

    const std::map<std::string, Value>& Values() const { return m_values; }
    /** Null where the key is missing or has a list. */
    const std::string* Text(const std::string& key) const;
    /** Empty where the key is missing or has a text. */
    Texts List(const std::string& key) const;
    /** The entries of a list without its header. */
    Texts Rows() const;
    bool HasHeader() const;
    /** As the application reads it: 0 where the key is missing or its text is no number. */
    int Number(const std::string& key) const;

    /** Whether the application will show a screen for it, which ends in an answer with the ids below. */
    bool AsksForScreen() const;
    /** For this kind of screen, for example "ui_type_list". */
    bool AsksFor(const std::string& type) const;
    bool AsksForClose() const;
    /** For a screen, but of a kind that the application does not have. */
    bool IsOfUnknownKind() const;
    bool AsksForMenu() const;
    /** The ids as the application reads them: 0 for a text without a number, and of the source the low 8 bits. */
    int UiId() const;
    std::uint8_t SourceId() const;

private:
    bool m_IsKnownKind() const;
    bool m_Is(const char* key, const std::string& value) const;

    std::map<std::string, Value> m_values;
};

} // namespace veskar
