// Mixed requests to the application of the TV in which this runs, in the middleware's place: every screen but the last
// must be answered once, as closed and with its ids.
//
// veskar-stress-load SECONDS [REQUESTS-A-SECOND]

#include "TvBus.h"

#include <sdbus-c++/sdbus-c++.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <mutex>
#include <thread>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace veskar;
using Clock = std::chrono::steady_clock;
using Ids = std::pair<int, int>;
using Texts = std::vector<std::string>;

namespace
{

[[noreturn]] void Fail(const std::string& what)
{
    std::cerr << "load: " << what << std::endl;
    std::_Exit(1);
}

/** What the application answers. */
class Answers
{
public:
    void Add(Ids ids, int kind)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (kind != Controller::Closed)
        {
            Fail("an answer of kind " + std::to_string(kind) + ", though nobody pressed a key");
        }
        m_all.push_back(ids);
        m_changed.notify_all();
    }

    /** Fails unless the next answer is this one, soon. */
    void Expect(Ids ids)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        ++m_expected;
        if (!m_changed.wait_for(lock, std::chrono::seconds(10), [this] { return m_all.size() >= m_expected; }))
        {
            Fail("no answer for ui " + std::to_string(ids.first));
        }
        if (m_all.size() > m_expected || m_all.back() != ids)
        {
            Fail("an answer that is wrong or one too many, for ui " + std::to_string(m_all.back().first));
        }
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Ids> m_all;
    std::size_t m_expected = 0;
};

std::map<std::string, sdbus::Variant> Request(int number, Ids ids)
{
    const char* const kinds[] = {"message",  "list",    "select",    "multiple_list", "multiple_image_list",
                                 "progress", "loading", "pin_entry", "image"};
    const std::string text = "Ελληνικά, עברית, ไทย & <b>" + std::string(static_cast<std::size_t>(number % 700), 'x');
    return {{"signal_type_key", std::string("signal_tvservice")},
            {"signal_tvservice_key", "ui_type_" + std::string(kinds[number % 9])},
            {"ui_param_ui_id", std::to_string(ids.first)},
            {"ui_param_source_id", std::to_string(ids.second)},
            {"ui_param_title", "Title " + std::to_string(number)},
            {"ui_param_sub", std::string(number % 2 == 0 ? "A sub-title" : "")},
            {"ui_param_txt", text},
            {"ui_param_buttons", Texts{"OK", text.substr(0, 40)}},
            {"ui_param_entries", Texts(static_cast<std::size_t>(number % 40), "one\ttwo " + text.substr(0, 30))},
            {"ui_param_format", std::string("LR")},
            {"ui_param_pin_length", std::string("4")}};
}

long Status(unsigned pid, const std::string& key)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/status");
    for (std::string word; file >> word;)
    {
        long value = 0;
        if (word == key && file >> value)
        {
            return value;
        }
    }
    return 0;
}

/** The process's memory (MB), threads and descriptors. */
std::string Size(unsigned pid)
{
    const std::filesystem::directory_iterator files("/proc/" + std::to_string(pid) + "/fd");
    return std::to_string(Status(pid, "VmRSS:") / 1024) + " MB, " + std::to_string(Status(pid, "Threads:")) +
           " threads, " + std::to_string(std::distance(begin(files), end(files))) + " descriptors";
}

/** Clients of the remote control's socket that leave in the middle of a line. */
void LeaveInTheMiddle(int clients)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, std::getenv("VESKAR_REMOTE_SOCKET"), sizeof address.sun_path - 1);
    for (int i = 0; i < clients; ++i)
    {
        const int client = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 || write(client, "pre", 3) != 3)
        {
            Fail("the remote control's socket refuses client " + std::to_string(i));
        }
        close(client);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const auto end = Clock::now() + std::chrono::seconds(argc > 1 ? std::atoi(argv[1]) : 10);
    const int rate = argc > 2 ? std::atoi(argv[2]) : 0;
    Answers answers;
    auto connection = sdbus::createSessionBusConnection();
    auto middleware = sdbus::createObject(*connection, PathOf(Controller::BUS_NAME));
    middleware->registerMethod(Controller::SEND_RESPONSE)
        .onInterface(Controller::INTERFACE)
        .implementedAs(
            [&answers](std::int32_t uiId, std::uint8_t sourceId, std::int32_t kind, std::uint8_t, std::uint8_t,
                       const std::string&) {
                answers.Add({uiId, sourceId}, kind);
            });
    middleware->finishRegistration();
    connection->requestName(Controller::BUS_NAME);
    connection->enterEventLoopAsync();
    auto application = sdbus::createProxy(*connection, Applications::DIALOGUES, PathOf(Applications::DIALOGUES));
    const auto pid = [&connection]
    {
        unsigned found = 0;
        sdbus::createProxy(*connection, "org.freedesktop.DBus", "/org/freedesktop/DBus")
            ->callMethod("GetConnectionUnixProcessID")
            .onInterface("org.freedesktop.DBus")
            .withArguments(std::string(Applications::DIALOGUES))
            .storeResultsTo(found);
        return found;
    };
    const auto send = [&application](int number, Ids ids)
    {
        const auto sent = Clock::now();
        application->callMethod(Applications::APP_CONTROL)
            .onInterface(Applications::INTERFACE)
            .withArguments(Request(number, ids));
        return std::chrono::duration<double, std::milli>(Clock::now() - sent).count();
    };

    std::string before;
    double slowest = 0;
    Ids shown{};
    int number = 0;
    for (auto next = Clock::now(); Clock::now() < end; ++number)
    {
        const Ids ids{number + 1, number % 3 == 0 ? 254 : number % 3 == 1 ? 255 : 7};
        const double milliseconds = send(number, ids);
        slowest = number == 0 ? 0 : std::max(slowest, milliseconds);
        if (number > 0)
        {
            answers.Expect(shown);
        }
        shown = ids;
        if (number == 1000)
        {
            before = Size(pid());
        }
        if (rate > 0)
        {
            std::this_thread::sleep_until(next += std::chrono::microseconds(1'000'000 / rate));
        }
    }
    const std::string after = Size(pid());
    LeaveInTheMiddle(1000);
    send(0, {number + 1, 255});
    answers.Expect(shown);
    std::cout << number << " requests, each replaced screen answered once; slowest " << slowest
              << " ms; after 1000: " << (before.empty() ? "-" : before) << "; at the end: " << after << std::endl;
    std::_Exit(0);
}
