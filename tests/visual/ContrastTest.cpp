// The contrasts of the theme, computed from the colours in its compiled files, and their table in the documents.
#include <Ecore_Evas.h>
#include <Edje.h>
#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <limits>
#include <map>
#include <sstream>

namespace
{

/** Red, green, blue and opacity, each from 0 to 1. */
using Colour = std::array<double, 4>;
using Palette = std::map<std::string, Colour>;

/** A foreground and the least contrast it needs on several grounds; the names are without "veskar/". */
struct Demand
{
    const char* foreground;
    std::vector<const char*> grounds;
    double least;
};

const std::vector<Demand> DEMANDS = {
    {"text", {"ground", "control", "row_focus"}, 7.0},
    {"focus_text", {"focus_fill"}, 7.0},
    {"focus_ring", {"ground", "control", "row_focus"}, 3.0},
    {"mark", {"ground", "row_focus"}, 3.0},
    {"mark_tick", {"mark"}, 7.0},
    {"bar", {"ground", "control", "track", "row_focus"}, 3.0},
    {"accent", {"ground", "track"}, 3.0},
    {"field", {"ground", "control"}, 3.0},
};
/** At high contrast: the application's own grey of lists and long texts, and what is seen by an outline or a fill. */
const std::vector<Demand> CONTRAST_DEMANDS = {
    {"#7F7F7F", {"ground", "row_focus"}, 5.2},
    {"outline", {"ground"}, 4.5},
    {"focus_fill", {"ground"}, 7.0},
};
/** What can be behind a screen: a programme of snow or a dark film, and the scrim at the screen's top and bottom. */
constexpr double PROGRAMMES[] = {1, 0};
constexpr double SCRIMS[] = {0.3, 0.7};

Palette ReadPalette(const std::string& file)
{
    Palette palette = {{"#7F7F7F", {127 / 255.0, 127 / 255.0, 127 / 255.0, 1}}};
    Eina_File* mapped = eina_file_open(file.c_str(), EINA_FALSE);
    Eina_Iterator* colours = mapped ? edje_mmap_color_class_iterator_new(mapped) : nullptr;
    const Edje_Color_Class* colour = nullptr;
    EINA_ITERATOR_FOREACH(colours, colour)
    {
        palette[std::string(colour->name).substr(sizeof "veskar/" - 1)] = {colour->r / 255.0, colour->g / 255.0,
                                                                           colour->b / 255.0, colour->a / 255.0};
    }
    eina_iterator_free(colours);
    eina_file_close(mapped);
    return palette;
}

Colour Over(const Colour& upper, const Colour& lower)
{
    Colour mixed = {0, 0, 0, 1};
    for (int channel = 0; channel < 3; channel++)
    {
        mixed[channel] = upper[channel] * upper[3] + lower[channel] * (1 - upper[3]);
    }
    return mixed;
}

double Luminance(const Colour& colour)
{
    const auto linear = [](double value)
    {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour[0]) + 0.7152 * linear(colour[1]) + 0.0722 * linear(colour[2]);
}

double ContrastOver(const Colour& behind, const Palette& palette, const char* foreground, const char* ground)
{
    const Colour panel = Over(palette.at("ground"), behind);
    const Colour below = Over(palette.at(ground), panel);
    const double one = Luminance(Over(palette.at(foreground), below));
    const double other = Luminance(below);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

/** The least that a viewer meets. */
double Contrast(const Palette& palette, const char* foreground, const char* ground)
{
    double least = std::numeric_limits<double>::max();
    Colour scrim = palette.at("dim");
    for (const double programme : PROGRAMMES)
    {
        for (const double opacity : SCRIMS)
        {
            scrim[3] = palette.at("dim")[3] * opacity;
            const Colour behind = Over(scrim, {programme, programme, programme, 1});
            least = std::min(least, ContrastOver(behind, palette, foreground, ground));
        }
    }
    return least;
}

std::string Row(const Palette& palette, const Demand& demand)
{
    std::ostringstream row;
    row.precision(1);
    row << std::fixed << "| " << demand.foreground << " |";
    for (const char* ground : demand.grounds)
    {
        const double contrast = Contrast(palette, demand.foreground, ground);
        EXPECT_GE(contrast, demand.least) << demand.foreground << " on " << ground;
        row << " " << ground << " " << contrast << (ground == demand.grounds.back() ? " |" : ",");
    }
    return row.str();
}

} // namespace

TEST(Contrast, IsEnoughAndAsTheDocumentSays)
{
    edje_init();
    std::ostringstream document;
    document << std::ifstream(VESKAR_DESIGN_LANGUAGE).rdbuf();
    for (const std::string theme : {"", "-large", "-contrast", "-large-contrast"})
    {
        SCOPED_TRACE("veskar-theme" + theme);
        const Palette palette = ReadPalette(VESKAR_THEMES + theme + ".edj");
        ASSERT_TRUE(palette.count("ground")) << "no colours";
        std::vector<Demand> all = DEMANDS;
        if (theme.find("contrast") != std::string::npos)
        {
            all.insert(all.end(), CONTRAST_DEMANDS.begin(), CONTRAST_DEMANDS.end());
        }
        for (const Demand& demand : all)
        {
            const std::string row = Row(palette, demand);
            std::cout << row << "\n";
            EXPECT_NE(document.str().find(row), std::string::npos) << "not in docs/design-language.md: " << row;
        }
    }
    edje_shutdown();
}
