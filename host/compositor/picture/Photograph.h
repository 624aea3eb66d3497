/** A picture from a file, to fill the screen. */
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <gdk-pixbuf/gdk-pixbuf.h>

namespace veskar
{

class Photograph
{
public:
    /** Reads a PNG or JPEG file, or another that the library knows. Returns what is wrong, or an empty text. */
    std::string Read(const std::string& path);

    /** Whether one has been read. */
    explicit operator bool() const { return m_pixels != nullptr; }

    /** Scaled and cut to this size around its middle: rows from the top, 0x00RRGGBB. */
    std::vector<uint32_t> Filling(int width, int height) const;

private:
    struct Unref
    {
        void operator()(GdkPixbuf* pixels) const { g_object_unref(pixels); }
    };
    using Pixels = std::unique_ptr<GdkPixbuf, Unref>;

    Pixels m_pixels;
};

} // namespace veskar
