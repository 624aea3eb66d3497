#include "Words.h"

#include "SharedFile.h"

#include <string_view>

#include <libintl.h>

namespace veskar
{
namespace
{

constexpr char DOMAIN[] = "veskar-voice";

/** In the language of the process's locale at this moment. */
const char* Translated(const char* english)
{
    static const char* const domain = []
    {
        bindtextdomain(DOMAIN, SharedFile("VESKAR_LOCALE_DIR", "locale").c_str());
        bind_textdomain_codeset(DOMAIN, "UTF-8");
        return DOMAIN;
    }();
    return dgettext(domain, english);
}

std::string WithNumber(std::string sentence, std::string_view placeholder, int number)
{
    const auto at = sentence.find(placeholder);
    return at == std::string::npos ? sentence : sentence.replace(at, placeholder.size(), std::to_string(number));
}

std::string WithNumbers(const char* english, int number, int count)
{
    return WithNumber(WithNumber(Translated(english), "{number}", number), "{count}", count);
}

} // namespace

std::string TickWord(bool ticked)
{
    return ticked ? Translated("ticked") : Translated("not ticked");
}

std::string NumberOf(int number, int count)
{
    return WithNumbers("{number} of {count}", number, count);
}

std::string PageOf(int number, int count)
{
    return WithNumbers("page {number} of {count}", number, count);
}

std::string DigitOf(int number, int count)
{
    return WithNumbers("digit {number} of {count}", number, count);
}

std::string Percent(int number)
{
    return WithNumber(Translated("{number} %"), "{number}", number);
}

} // namespace veskar
