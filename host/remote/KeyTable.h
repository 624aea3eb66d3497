/**
 * Every key of the remote control: its platform name, the code under which the compositor sends it and the symbol that
 * the generated keymap gives it.
 *
 * The codes lie above those of any real keyboard, so that a sent key is never mistaken for a typed one.
 */
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace veskar
{

struct Key
{
    const char* name;
    uint32_t code;
    uint32_t symbol;
};

const std::vector<Key>& AllKeys();

/** Null when there is no such key. */
const Key* KeyByCode(uint32_t code);

/** By platform name only. */
const Key* KeyByName(std::string_view name);

/** By platform name, or by the part of it that a person would type ("Back", "more", "play"). */
const Key* KeyByShortName(std::string_view name);

/** An XKB keymap (text format 1) in which each key's code gives its symbol; it depends on no installed XKB data. */
std::string KeymapText();

} // namespace veskar
