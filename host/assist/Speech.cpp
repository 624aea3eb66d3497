#include "Speech.h"

#include "CString.h"
#include "FreeWith.h"
#include "Log.h"

#include <condition_variable>
#include <csignal>
#include <deque>
#include <libspeechd.h>
#include <memory>
#include <mutex>
#include <thread>

namespace veskar
{
namespace
{

struct Sentence
{
    std::string text;
    std::string language;
    Turn turn;
};

using Connection = std::unique_ptr<SPDConnection, FreeWith<spd_close>>;

/** Null when no dispatcher is running; none is started, because a TV may have no voice. */
Connection Connect()
{
    constexpr int START_NONE = 0;
    char* error = nullptr;
    Connection connection(spd_open2("veskar-tv", "voice-guide", nullptr, SPD_MODE_SINGLE, nullptr, START_NONE, &error));
    const CString message(error);
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
    if (sentence.turn == Turn::AtOnce)
    {
        spd_cancel(connection);
    }
    return spd_say(connection, SPD_MESSAGE, sentence.text.c_str()) >= 0;
}

/** The main thread handles signals. This also blocks SIGPIPE, which comes when a dispatcher ends while it speaks. */
void BlockSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

/** Holds the next sentences for the thread that speaks. */
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
        if (sentence.turn == Turn::AtOnce)
        {
            m_waiting.clear();
        }
        m_waiting.push_back(std::move(sentence));
        m_arrived.notify_one();
    }

private:
    Sentence m_Next()
    {
        std::unique_lock lock(m_mutex);
        m_arrived.wait(lock, [this] { return !m_waiting.empty(); });
        Sentence sentence = std::move(m_waiting.front());
        m_waiting.pop_front();
        return sentence;
    }

    [[noreturn]] void m_SpeakForEver()
    {
        BlockSignals();
        Connection connection;
        for (;;)
        {
            const Sentence sentence = m_Next();
            if (connection && Speak(connection.get(), sentence))
            {
                continue;
            }
            // Not connected yet, or the dispatcher has ended; it may have been restarted.
            connection = Connect();
            if (connection)
            {
                Speak(connection.get(), sentence);
            }
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::deque<Sentence> m_waiting;
};

} // namespace

void Say(std::string text, std::string language, Turn turn)
{
    // Never destroyed, and its thread never joined: a dispatcher that hangs must not hold up the end of the process.
    static auto* const voice = new Voice;
    voice->Say({std::move(text), std::move(language), turn});
}

} // namespace veskar
