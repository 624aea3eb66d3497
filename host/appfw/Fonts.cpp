#include "Fonts.h"

#include <set>
#include <sstream>

#include <fontconfig/fontconfig.h>

namespace veskar
{
namespace
{

/** Of the configuration that the toolkit's texts use too, so nothing is read twice. */
std::set<std::string> InstalledFamilies()
{
    std::set<std::string> families;
    const FcFontSet* fonts = FcInit() == FcTrue ? FcConfigGetFonts(nullptr, FcSetSystem) : nullptr;
    for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i)
    {
        FcChar8* family = nullptr;
        for (int n = 0; FcPatternGetString(fonts->fonts[i], FC_FAMILY, n, &family) == FcResultMatch; ++n)
        {
            families.insert(reinterpret_cast<const char*>(family));
        }
    }
    return families;
}

} // namespace

std::string MissingFonts()
{
    const auto installed = InstalledFamilies();
    std::istringstream wanted(VESKAR_FONT_FAMILIES);
    std::string missing;
    for (std::string family; std::getline(wanted, family, ',');)
    {
        if (installed.count(family) == 0)
        {
            missing += (missing.empty() ? "" : ", ") + family;
        }
    }
    return missing;
}

} // namespace veskar
