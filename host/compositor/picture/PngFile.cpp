#include "PngFile.h"

#include "FreeWith.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <png.h>

namespace veskar
{

namespace
{

// libpng reports errors with longjmp, which skips destructors. So nothing in this function has one.
bool Encode(const Picture& picture, FILE* file)
{
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
    if (info == nullptr || setjmp(png_jmpbuf(png)) != 0)
    {
        png_destroy_write_struct(&png, &info);
        return false;
    }
    png_init_io(png, file);
    // The compositor is blocked while this runs, so speed matters more than size.
    png_set_compression_level(png, 1);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
    png_set_IHDR(png, info, picture.width, picture.height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_set_filler(png, 0, PNG_FILLER_AFTER);
    for (uint32_t row = 0; row < picture.height; ++row)
    {
        png_write_row(png, reinterpret_cast<png_const_bytep>(&picture.pixels[size_t{row} * picture.width]));
    }
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return true;
}

} // namespace

std::string WritePng(const Picture& picture, const std::string& path)
{
    const std::string temporary = path + ".part";
    std::unique_ptr<FILE, FreeWith<std::fclose>> file(std::fopen(temporary.c_str(), "wbe"));
    if (!file)
    {
        return path + ": " + std::strerror(errno);
    }
    const bool written = Encode(picture, file.get()) && std::fflush(file.get()) == 0;
    file.reset();
    if (written && std::rename(temporary.c_str(), path.c_str()) == 0)
    {
        return "";
    }
    std::string error = path + ": " + std::strerror(errno);
    std::remove(temporary.c_str());
    return error;
}

} // namespace veskar
