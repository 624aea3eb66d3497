#include "Photograph.h"

#include <algorithm>
#include <filesystem>

namespace veskar
{
namespace
{

constexpr int COLOURS = 3;

} // namespace

std::string Photograph::Read(const std::string& path)
{
    // A pipe would stop the compositor.
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored))
    {
        return "\"" + path + "\" is no file";
    }
    GError* error = nullptr;
    Pixels read(gdk_pixbuf_new_from_file(path.c_str(), &error));
    if (!read)
    {
        std::string message = error->message;
        g_error_free(error);
        return message;
    }
    m_pixels = std::move(read);
    return "";
}

std::vector<uint32_t> Photograph::Filling(int width, int height) const
{
    const double scale = std::max(static_cast<double>(width) / gdk_pixbuf_get_width(m_pixels.get()),
                                  static_cast<double>(height) / gdk_pixbuf_get_height(m_pixels.get()));
    const double left = (width - scale * gdk_pixbuf_get_width(m_pixels.get())) / 2;
    const double top = (height - scale * gdk_pixbuf_get_height(m_pixels.get())) / 2;
    const Pixels screen(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, width, height));
    std::vector<uint32_t> filled;
    if (!screen)
    {
        filled.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
        return filled;
    }
    gdk_pixbuf_fill(screen.get(), 0); // below a transparent picture
    gdk_pixbuf_composite(m_pixels.get(), screen.get(), 0, 0, width, height, left, top, scale, scale,
                         GDK_INTERP_BILINEAR, 255);
    const guint8* bytes = gdk_pixbuf_read_pixels(screen.get());
    filled.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int row = 0; row < height; ++row)
    {
        const guint8* pixel = bytes + static_cast<std::ptrdiff_t>(row) * gdk_pixbuf_get_rowstride(screen.get());
        for (int column = 0; column < width; ++column, pixel += COLOURS)
        {
            filled.push_back(static_cast<uint32_t>(pixel[0]) << 16 | static_cast<uint32_t>(pixel[1]) << 8 | pixel[2]);
        }
    }
    return filled;
}

} // namespace veskar
