/**
 * Where the TV's settings are kept on a desk: one plain file for each key, the key being its relative path, below one
 * of three folders. A value is seen at the next read; nothing is cached. Any thread.
 */
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace veskar
{

enum class SettingKind
{
    /** "db/...": below VESKAR_SETTINGS_DIR. */
    Kept,
    /** "memory/...": below VESKAR_MEMORY_DIR, gone with the power. */
    Volatile,
    /** Every other key is a feature flag of the set: below VESKAR_FEATURES_DIR. */
    Feature
};

SettingKind KindOf(std::string_view key);

/** False for an empty key or component, "." or ".." as one, a leading or trailing slash, and control characters. */
bool IsWellFormedKey(std::string_view key);

/** The file of a key; nothing for a key that is not well-formed, or where the environment names no folder for it. */
std::optional<std::filesystem::path> SettingFile(std::string_view key);

/**
 * The value without one line break at its end; nothing for a key that is unset or not well-formed, and for a file of
 * more than 64 KiB.
 */
std::optional<std::string> ReadSetting(std::string_view key);

/** The whole text as a number; nothing when it is not one, or does not fit. */
std::optional<int> ParseWholeNumber(std::string_view text);

/** Both together. */
std::optional<int> ReadWholeNumber(std::string_view key);

/**
 * Replaces the file in one step, so that a reader sees the old value or the new one. Makes the folders that are
 * missing. `invalid_argument` for a key without a file, `file_too_large` for a value that no reader would take.
 */
std::error_code WriteSetting(std::string_view key, std::string_view value);

/** No error when it was not set. */
std::error_code RemoveSetting(std::string_view key);

} // namespace veskar
