#include "voice_guide.h"

#include "Log.h"

#include <Elementary.h>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

namespace
{

/** What is to be heard: no markup, one line. */
std::string Spoken(const char* text)
{
    const std::unique_ptr<char, decltype(&std::free)> plain(elm_entry_markup_to_utf8(text), std::free);
    std::string sentence = plain ? plain.get() : "";
    std::replace(sentence.begin(), sentence.end(), '\n', ' ');
    return sentence;
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
        ASSIST_WARN("cannot write to %s", path);
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
}
