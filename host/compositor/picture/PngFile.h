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

/** Written beside `path`, then renamed, so that a file under that name is always complete. Returns what went wrong. */
std::string WritePng(const Picture& picture, const std::string& path);

} // namespace veskar
