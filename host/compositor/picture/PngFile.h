/** Pictures in memory, and as PNG files. */
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace veskar
{

struct Picture
{
    uint32_t width = 0;
    uint32_t height = 0;
    /** Row by row from the top; red, green, blue and an unused byte each, in this order in memory. */
    std::vector<uint32_t> pixels;
};

/**
 * Writes a temporary file and renames it to `path`, so that a file at `path` is always complete. Returns an error
 * message, or an empty text on success.
 */
std::string WritePng(const Picture& picture, const std::string& path);

} // namespace veskar
