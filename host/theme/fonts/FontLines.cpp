/**
 * veskar-font-lines LIKE FONT COPY ABOVE: writes a copy of FONT with the line height of the font LIKE. ABOVE is the
 * extra room above the line, in font sizes. Of a collection of fonts the copy has the first alone, because that is the
 * one that the toolkit takes.
 *
 * The toolkit makes a text's first and last line as high as the box that all glyphs of the font fit in. So a font with
 * a few huge glyphs, such as the long strokes of vertical writing, makes every text higher that contains one of its
 * letters.
 */
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace
{

/** How far lines and glyphs reach above (positive) and below (negative) the base line, in sizes of the font. */
struct Reach
{
    double ascender;
    double descender;
    double top;
    double bottom;
};

/** An OpenType file; its numbers are big-endian. */
class FontFile
{
public:
    explicit FontFile(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        m_bytes.assign(std::istreambuf_iterator<char>(file), {});
        if (!file)
        {
            throw std::runtime_error("cannot read " + path);
        }
        if (m_bytes.compare(0, 4, "ttcf") == 0)
        {
            m_bytes = m_FirstOfCollection();
        }
    }

    Reach GetReach() const
    {
        const std::size_t head = m_Table("head");
        const std::size_t lines = m_Table("hhea");
        const double size = m_Number(head + SIZE, 2);
        return {m_Signed(lines + ASCENDER) / size, m_Signed(lines + DESCENDER) / size, m_Signed(head + TOP) / size,
                m_Signed(head + BOTTOM) / size};
    }

    void SetReach(const Reach& reach)
    {
        const std::size_t head = m_Table("head");
        const std::size_t lines = m_Table("hhea");
        const double size = m_Number(head + SIZE, 2);
        m_Set(lines + ASCENDER, reach.ascender * size);
        m_Set(lines + DESCENDER, reach.descender * size);
        m_Set(lines + LINE_GAP, 0);
        m_Set(head + TOP, reach.top * size);
        m_Set(head + BOTTOM, reach.bottom * size);
    }

    void Write(const std::string& path) const
    {
        std::ofstream file(path, std::ios::binary);
        file << m_bytes;
        if (!file.flush())
        {
            throw std::runtime_error("cannot write " + path);
        }
    }

private:
    // The directory of a font's tables: its header, each of its entries, and places in an entry.
    static constexpr std::size_t HEADER = 12;
    static constexpr std::size_t ENTRY = 16;
    static constexpr std::size_t OFFSET = 8;
    static constexpr std::size_t LENGTH = 12;

    // Places in the tables "head" (the first three) and "hhea".
    static constexpr std::size_t SIZE = 18;
    static constexpr std::size_t BOTTOM = 38;
    static constexpr std::size_t TOP = 42;
    static constexpr std::size_t ASCENDER = 4;
    static constexpr std::size_t DESCENDER = 6;
    static constexpr std::size_t LINE_GAP = 8;

    /** Uses at() everywhere, so that a file that is no font ends in an exception. */
    std::uint32_t m_Number(std::size_t at, std::size_t length) const
    {
        std::uint32_t number = 0;
        for (std::size_t i = at; i < at + length; ++i)
        {
            number = number << 8 | static_cast<unsigned char>(m_bytes.at(i));
        }
        return number;
    }

    int m_Signed(std::size_t at) const { return static_cast<std::int16_t>(m_Number(at, 2)); }

    void m_Set(std::size_t at, double value)
    {
        const long number = std::lround(value);
        m_bytes.at(at) = static_cast<char>(number >> 8);
        m_bytes.at(at + 1) = static_cast<char>(number);
    }

    /** A font of its own. */
    std::string m_FirstOfCollection() const
    {
        const std::size_t directory = m_Number(12, 4);
        const std::size_t size = HEADER + ENTRY * m_Number(directory + 4, 2);
        std::string font = m_bytes.substr(directory, size);
        for (std::size_t entry = HEADER; entry < size; entry += ENTRY)
        {
            const std::string table =
                m_bytes.substr(m_Number(directory + entry + OFFSET, 4), m_Number(directory + entry + LENGTH, 4));
            for (int i = 0; i < 4; ++i)
            {
                font[entry + OFFSET + i] = static_cast<char>(font.size() >> (24 - 8 * i));
            }
            font += table + std::string((4 - table.size() % 4) % 4, '\0');
        }
        return font;
    }

    std::size_t m_Table(const char* tag) const
    {
        const std::size_t size = HEADER + ENTRY * m_Number(4, 2);
        for (std::size_t entry = HEADER; entry < size; entry += ENTRY)
        {
            if (m_bytes.compare(entry, 4, tag) == 0)
            {
                return m_Number(entry + OFFSET, 4);
            }
        }
        throw std::runtime_error(std::string("no table ") + tag);
    }

    std::string m_bytes;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5)
    {
        std::cerr << "Usage: veskar-font-lines LIKE FONT COPY ABOVE\n";
        return 64;
    }
    try
    {
        Reach reach = FontFile(argv[1]).GetReach();
        reach.top += std::stod(argv[4]);
        FontFile font(argv[2]);
        font.SetReach(reach);
        font.Write(argv[3]);
        return 0;
    }
    catch (const std::exception& error)
    {
        std::cerr << "veskar-font-lines: " << argv[2] << ": " << error.what() << '\n';
        return 1;
    }
}
