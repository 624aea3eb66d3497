#include "voice_guide.h"

#include "Log.h"
#include "SettingKeys.h"
#include "Speech.h"
#include "vconf.h"

#include <Elementary.h>
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

namespace
{

using Text = std::unique_ptr<char, decltype(&std::free)>;

/** What is to be heard: no markup, one line. */
std::string Spoken(const char* text)
{
    const Text plain(elm_entry_markup_to_utf8(text), std::free);
    std::string sentence = plain ? plain.get() : "";
    const auto isControl = [](unsigned char character)
    {
        return std::iscntrl(character) != 0;
    };
    std::replace_if(sentence.begin(), sentence.end(), isControl, ' ');
    return sentence;
}

std::string Language()
{
    const Text language(vconf_get_str(veskar::LanguageKey), std::free);
    return language ? language.get() : "";
}

/** Lets others read what was spoken: one line for each sentence in the file that the environment names. */
void Record(const std::string& sentence)
{
    const char* path = std::getenv("VESKAR_VOICE_FILE");
    if (!path || !*path)
    {
        return;
    }
    std::ofstream file(path, std::ios::app);
    file << sentence << '\n';
    if (!file.flush())
    {
        ASSIST_WARN("cannot write what is spoken to %s", path);
    }
}

} // namespace

void elm_access_force_say(const char* text)
{
    if (!text)
    {
        return;
    }
    const std::string sentence = Spoken(text);
    ASSIST_INFO("Speaking: %s", sentence.c_str());
    Record(sentence);
    veskar::Say(sentence, Language());
}
