#include "Fonts.h"

#include <memory>
#include <set>
#include <sstream>
#include <string>

#include <fontconfig/fontconfig.h>

#include "FreeWith.h"
#include "Log.h"

namespace veskar
{
namespace
{

/** Seconds. Reading the fonts for this takes milliseconds, for which the first picture should not wait. */
constexpr double A_WHILE = 1;

using FontConfig = std::unique_ptr<FcConfig, FreeWith<FcConfigDestroy>>;

/** Null where the configuration cannot be read or names no folder for what is known of the fonts. */
FontConfig NamedConfiguration()
{
    FontConfig config(FcConfigCreate());
    if (!config || !FcConfigParseAndLoad(config.get(), nullptr, FcTrue))
    {
        return nullptr;
    }
    FcStrList* folders = FcConfigGetCacheDirs(config.get());
    const bool hasFolder = folders != nullptr && FcStrListNext(folders) != nullptr;
    FcStrListDone(folders);
    return hasFolder ? std::move(config) : nullptr;
}

std::set<std::string> InstalledFamilies()
{
    std::set<std::string> families;
    const FontConfig config(FcInitLoadConfigAndFonts());
    const FcFontSet* fonts = config ? FcConfigGetFonts(config.get(), FcSetSystem) : nullptr;
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

/** Separated by commas; empty when all are installed. */
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

void LogMissing()
{
    if (const auto fonts = MissingFonts(); !fonts.empty())
    {
        APPFW_ERROR("fonts are missing, their texts are drawn with others or as boxes: %s; Debian has them in "
                    "fonts-noto-core, -ui-core, -cjk and -color-emoji",
                    fonts.c_str());
    }
}

} // namespace

FontCheck::FontCheck() : m_timer(ecore_timer_add(A_WHILE, s_OnTime, this)) {}

FontCheck::~FontCheck()
{
    if (m_timer != nullptr)
    {
        ecore_timer_del(m_timer);
        LogMissing();
    }
}

Eina_Bool FontCheck::s_OnTime(void* data)
{
    static_cast<FontCheck*>(data)->m_timer = nullptr;
    LogMissing();
    return ECORE_CALLBACK_CANCEL;
}

} // namespace veskar

/**
 * In place of the library's own, which the toolkit calls. That one also reads all rules that are installed but not
 * switched on, only to describe them: forty files, most of the time that it takes.
 */
extern "C" FcConfig* FcInitLoadConfigAndFonts()
{
    veskar::FontConfig config = veskar::NamedConfiguration();
    if (!config)
    {
        config.reset(FcInitLoadConfig());
    }
    if (config)
    {
        FcConfigBuildFonts(config.get());
    }
    return config.release();
}
