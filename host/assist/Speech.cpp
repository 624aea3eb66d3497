#include "Speech.h"

#include "Log.h"

#include <condition_variable>
#include <libspeechd.h>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace veskar
{
namespace
{

struct Sentence
{
    std::string text;
    std::string language;
};

struct CloseConnection
{
    void operator()(SPDConnection* connection) const { spd_close(connection); }
};

using Connection = std::unique_ptr<SPDConnection, CloseConnection>;

/** Nothing where no dispatcher is running: a TV without a voice starts none. */
Connection Connect()
{
    constexpr int startNone = 0;
    char* error = nullptr;
    Connection connection(spd_open2("veskar-tv", "voice-guide", nullptr, SPD_MODE_SINGLE, nullptr, startNone, &error));
    const std::unique_ptr<char, decltype(&std::free)> message(error, std::free);
    if (!connection)
    {
        ASSIST_DEBUG("nobody speaks: %s", message ? message.get() : "no speech dispatcher");
    }
    return connection;
}

bool Speak(SPDConnection* connection, const Sentence& sentence)
{
    if (!sentence.language.empty())
    {
        const std::string language = sentence.language.substr(0, sentence.language.find('_'));
        spd_set_language(connection, language.c_str());
    }
    spd_cancel(connection);
    return spd_say(connection, SPD_MESSAGE, sentence.text.c_str()) >= 0;
}

/** Holds the next sentence for the thread that speaks. */
class Voice
{
public:
    Voice()
    {
        std::thread([this] { m_SpeakForEver(); }).detach();
    }

    void Say(Sentence sentence)
    {
        const std::lock_guard lock(m_mutex);
        m_next = std::move(sentence);
        m_arrived.notify_one();
    }

private:
    Sentence m_Next()
    {
        std::unique_lock lock(m_mutex);
        m_arrived.wait(lock, [this] { return m_next.has_value(); });
        Sentence sentence = std::move(*m_next);
        m_next.reset();
        return sentence;
    }

    [[noreturn]] void m_SpeakForEver()
    {
        Connection connection;
        for (;;)
        {
            const Sentence sentence = m_Next();
            if (!connection)
            {
                connection = Connect();
            }
            // A dispatcher that has gone may be back by now.
            if (connection && !Speak(connection.get(), sentence))
            {
                connection = Connect();
                if (connection)
                {
                    Speak(connection.get(), sentence);
                }
            }
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::optional<Sentence> m_next;
};

} // namespace

void Say(std::string text, std::string language)
{
    // Never destroyed, and its thread never joined: a dispatcher that hangs must not hold up the end of the process.
    static auto* const voice = new Voice;
    voice->Say({std::move(text), std::move(language)});
}

} // namespace veskar
