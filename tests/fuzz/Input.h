/** What the fuzz targets share. Each defines LLVMFuzzerTestOneInput; whoever links it brings the main function. */
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size);

/** Ends the process as a fault unless `holds`. */
inline void Require(bool holds, const std::string& what)
{
    if (!holds)
    {
        std::fprintf(stderr, "not true: %s\n", what.c_str());
        std::abort();
    }
}

/** The bytes of one run, read from the front. Behind the end every byte is 0 and every text is empty. */
class Input
{
public:
    Input(const uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size) {}

    bool Empty() const { return m_rest.empty(); }

    unsigned char Byte() { return static_cast<unsigned char>(Bytes(1)[0]); }

    unsigned Number() { return Byte() | static_cast<unsigned>(Byte()) << 8U; }

    std::string Bytes(std::size_t count)
    {
        std::string bytes(m_rest.substr(0, count));
        m_rest.remove_prefix(bytes.size());
        bytes.resize(count);
        return bytes;
    }

    /** Up to a zero byte. */
    std::string Text()
    {
        const std::string text = Bytes(std::min(m_rest.find('\0'), m_rest.size()));
        Bytes(1);
        return text;
    }

    std::string Rest() { return Bytes(m_rest.size()); }

private:
    std::string_view m_rest;
};
