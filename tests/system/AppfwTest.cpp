// Which calls an application gets, in which order, and that nothing sent to it is lost.

#include "Tv.h"

#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include <unistd.h>

namespace
{

using Events = Words;
using Values = std::map<std::string, sdbus::Variant>;
using namespace veskar;

Values Request(const std::string& name, const std::string& action = "")
{
    return {{"name", name}, {"do", action}};
}

/** The application with this environment variable, not started by the bus; it logs into the TV's log too. */
Events InLog(const std::string& variable)
{
    return {"env", variable, "sh", "-c", "exec \"$1\" 2>>\"$VESKAR_TV_LOG\"", "sh", PROBE};
}

class Appfw : public TvTest
{
protected:
    /** What the application has logged since the test began. */
    Events Told() const
    {
        const std::string beginning = "PROBE I ";
        std::istringstream log(Log());
        Events events;
        for (std::string line; std::getline(log, line);)
        {
            if (line.compare(0, beginning.size(), beginning) == 0)
            {
                events.push_back(line.substr(beginning.size()));
            }
        }
        return events;
    }

    void ExpectTold(const Events& expected) const
    {
        WaitUntil([&] { return Told().size() >= expected.size(); });
        EXPECT_EQ(Told(), expected);
    }
};

TEST_F(Appfw, EachHideAndShowIsToldBeforeTheNextRequestAndAWindowThatComesBackAtOnceStays)
{
    SendRaw(Request("start"));
    const std::string id = Applications::DIALOGUES;
    auto application = sdbus::createProxy(*m_bus, id, PathOf(id));
    for (const char* action : {"replace", "replace", "hide", "hide", "show"})
    {
        application->callMethod(Applications::APP_CONTROL)
            .onInterface(Applications::INTERFACE)
            .withArguments(Request(action, action))
            .dontExpectReply();
    }
    Call("Pause");
    Call("Resume");
    ExpectTold({"create", "request start", "resume", "request replace", "pause", "resume", "request replace", "pause",
                "resume", "request hide", "off the screen", "pause", "request hide", "request show", "resume", "pause",
                "resume"});
}

TEST_F(Appfw, AWindowThatIsHiddenBeforeTheCompositorHasAnsweredCanBeShownAgain)
{
    for (int round = 0; round < 4; ++round)
    {
        SendRaw(Request("start", "hide"));
        SendRaw(Request("again", "show"));
        RunCommand({"veskar-remote", "wait", "--still"});
        EndApplication();
    }
    EXPECT_EQ(CountInLog("the compositor is gone"), 0);
}

TEST_F(Appfw, WhatIsNoStringOrTooLargeIsRefusedByItsKeyAndNeverSeen)
{
    constexpr std::size_t LONGEST = 64UL * 1024;
    const std::string longText(LONGEST, 'x');
    const std::string manyBreaks = std::string(2000, '\n') + std::string(2000, '\t');
    const std::string manyCells(64, '\t');
    EXPECT_EQ(SendRaw({{"name", std::string("whole")},
                       {"a", longText},
                       {"b", Events(20000, "x")},
                       {"c", manyBreaks},
                       {"d", Events(2, manyCells)}}),
              "");
    Events large(127, longText);
    large.push_back(longText.substr(sizeof(std::string))); // the key counts too
    EXPECT_EQ(SendRaw({{"all", large}}), "");
    large.push_back("");
    Values manyKeys;
    for (int i = 10000; i <= 30000; ++i)
    {
        manyKeys[std::to_string(i)] = std::string();
    }
    const std::pair<std::string, Values> refused[] = {
        {"number", {{"fine", std::string("x")}, {"number", 7}}},
        {"numbers", {{"numbers", std::vector<int>{7}}}},
        {"text", {{"text", longText + "x"}}},
        {"breaks", {{"breaks", manyBreaks + "\n"}}},
        {"cells", {{"cells", Events{"fine", manyCells + "\t"}}}},
        {"array", {{"array", Events(20001, "x")}}},
        {"all", {{"all", large}}},
        {"30000", manyKeys},
    };
    for (const auto& [key, values] : refused)
    {
        const std::string error = SendRaw(values);
        EXPECT_EQ(error.find("org.tizen.Application1.Error.Refused: "), 0u) << error;
        EXPECT_NE(error.find('"' + key + '"'), std::string::npos) << error;
        const std::string logged = "AppControl(a{sv}) of " + m_bus->getUniqueName() + " is refused: ";
        EXPECT_EQ(CountInLog(logged + error.substr(error.find(": ") + 2)), 1) << error;
    }
    EXPECT_THROW(sdbus::createProxy(*m_bus, Applications::DIALOGUES, PathOf(Applications::DIALOGUES))
                     ->callMethod(Applications::APP_CONTROL)
                     .onInterface(Applications::INTERFACE)
                     .withArguments(std::string("of a wrong signature")),
                 sdbus::Error);
    EXPECT_EQ(CountInLog("AppControl(s) of " + m_bus->getUniqueName() + " is refused"), 1);
    ExpectTold({"create", "request whole", "resume", "request "});
}

TEST_F(Appfw, RequestsAreToldOnceAndInTheirOrderWheneverTheProcessEnds)
{
    constexpr int ROUNDS = 40;
    constexpr int BURST = 12;
    std::minstd_rand random(20261121);
    std::uniform_int_distribution<int> moment(0, 5000);
    std::atomic<int> taken{0};
    auto connection = sdbus::createSessionBusConnection();
    connection->enterEventLoopAsync();
    auto application = sdbus::createProxy(*connection, Applications::DIALOGUES, PathOf(Applications::DIALOGUES));
    for (int sent = 1; sent <= ROUNDS * BURST; ++sent)
    {
        // The second "end" is among the requests that the first process could not take any more.
        auto request = Request(std::to_string(sent), sent % BURST == 1 || sent % BURST == 4 ? "end" : "");
        if (sent == BURST)
        {
            request["more"] = Events(100, std::string(60'000, 'x')); // a socket takes some 200,000 bytes
        }
        application->callMethodAsync(Applications::APP_CONTROL)
            .onInterface(Applications::INTERFACE)
            .withArguments(request)
            .uponReplyInvoke(
                [&taken](const sdbus::Error* error)
                {
                    taken += error == nullptr ? 1 : 0;
                    EXPECT_EQ(error == nullptr ? "" : error->getMessage(), "");
                });
        std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
        ASSERT_TRUE(sent % BURST != 0 || WaitUntil([&] { return taken == sent; })) << taken << " of " << sent;
    }
    Call("Terminate");
    EXPECT_TRUE(WaitForApplicationEnd());
    int told = 0;
    for (const auto& event : Told())
    {
        if (event.find("request ") == 0)
        {
            EXPECT_EQ(event, "request " + std::to_string(++told));
        }
    }
    EXPECT_EQ(told, ROUNDS * BURST);
    EXPECT_GT(CountInLog("passed on to the next process"), ROUNDS) << "no request met the end of the process";
}

TEST_F(Appfw, ALeavingProcessThatHangsDoesNotKeepTheNextOneForEver)
{
    const std::string leaving = Applications::LeavingNameOf(Applications::DIALOGUES);
    ASSERT_TRUE(WaitUntil([&] { return ApplicationPid(leaving) == 0; })); // the last process of the test before
    m_bus->requestName(leaving);                                          // and answers nothing
    EXPECT_EQ(SendRaw(Request("first")), "");
    m_bus->releaseName(leaving);
    ExpectTold({"create", "request first", "resume"});
}

TEST_F(Appfw, WhatARequestHasFreedIsGivenBackToTheSystem)
{
    SendRaw(Request("start"));
    const std::string file = "/proc/" + std::to_string(ApplicationPid()) + "/statm";
    const auto pages = [&file]
    {
        long size = 0;
        long resident = 0;
        std::ifstream(file) >> size >> resident;
        return resident;
    };
    const long before = pages();
    const long half = 50'000'000 / sysconf(_SC_PAGESIZE);
    SendRaw(Request("large", "fill memory"));
    EXPECT_GT(pages(), before + half);
    EXPECT_TRUE(WaitUntil([&] { return pages() < before + half; }));
}

TEST_F(Appfw, AnApplicationThatNobodyHasIsNotFound)
{
    SendRaw(Request("start", "launch nobody"));
    ExpectTold({"create", "request start", "launch -17825759", "resume"});
}

TEST_F(Appfw, WhatIsSentInTerminateArrivesThoughItsTargetStartsSlowly)
{
    const std::pair<std::string, std::string> programs[] = {
        {"org.tizen.slow", "sleep 0.2; exec " PROBE},
        // Slower than the other: waiting for that one would not be long enough.
        {"org.tizen.veskar-middleware", "sleep 0.8; exec veskar-services"}};
    for (const auto& [name, command] : programs)
    {
        std::ofstream(Environment("VESKAR_TV_DIR") + "/services/" + name + ".service")
            << "[D-BUS Service]\nName=" << name << "\nExec=/usr/bin/env VESKAR_APP_ID=" << name << " sh -c '" << command
            << "'\n";
    }
    sdbus::createProxy(*m_bus, "org.freedesktop.DBus", "/org/freedesktop/DBus")
        ->callMethod("ReloadConfig")
        .onInterface("org.freedesktop.DBus");
    SendRaw(Request("start", "send at the end"));
    ExpectTold({"create", "request start", "resume"});
    EndApplication();
    Events expected = {"create", "request start",        "resume", "terminate", "launch 0", "answer 1", "no text 0",
                       "create", "request from another", "resume"};
    ExpectTold(expected);
    const std::string answer = "SendResponse ui -7, source 254, kind 3, button 1, item 255, data 6 bytes";
    EXPECT_TRUE(WaitUntil([&] { return CountInLog(answer) == 1; }));
    EXPECT_EQ(CountInLog("SendResponse"), 1);
    Call("Terminate", "org.tizen.slow");
    expected.emplace_back("terminate");
    ExpectTold(expected);
}

TEST_F(Appfw, WithoutABusOrACompositorOrWhenCreateFailsItEndsWithAnError)
{
    EXPECT_EQ(Process(InLog("WAYLAND_DISPLAY=nowhere")).Status(), 1);
    EXPECT_EQ(CountInLog("no compositor at WAYLAND_DISPLAY=nowhere"), 1);
    EXPECT_EQ(Process(InLog("PROBE_LOSES_COMPOSITOR=1")).Status(), 1);
    EXPECT_EQ(CountInLog("no compositor at WAYLAND_DISPLAY=gone"), 1);
    EXPECT_EQ(Process(InLog("PROBE_CREATE_FAILS=1")).Status(), 1);
    EXPECT_EQ(Process({"env", "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere", PROBE}).Status(), 1);
    ExpectTold({"create", "terminate", "create"});
}

TEST_F(Appfw, AThemeThatIsDamagedAndFontsThatAreMissingAreOneLineEach)
{
    const std::string folder = Environment("XDG_RUNTIME_DIR");
    std::filesystem::copy(Environment("VESKAR_THEME"), folder + "/half.edj");
    std::filesystem::resize_file(folder + "/half.edj", 5000);
    std::ofstream(folder + "/no-fonts.conf") << "<fontconfig></fontconfig>";
    const std::pair<std::string, std::string> spoilt[] = {
        {"VESKAR_THEME=" + folder + "/half.edj", "half.edj is damaged"},
        {"VESKAR_THEME=/nowhere.edj", "/nowhere.edj is missing"},
        {"FONTCONFIG_FILE=" + folder + "/no-fonts.conf", "fonts are missing"},
    };
    Events expected;
    for (const auto& [variable, line] : spoilt)
    {
        Process application(InLog(variable));
        expected.insert(expected.end(), {"create", "resume", "terminate"});
        WaitUntil([&] { return Told().size() >= expected.size() - 1; });
        application.Signal(SIGTERM);
        EXPECT_EQ(application.Status(), 0);
        EXPECT_EQ(CountInLog(line), 1) << line;
    }
    EXPECT_EQ(CountInLog("VESKAR-APPFW E"), 3);
    ExpectTold(expected);
}

TEST_F(Appfw, WhenTheCompositorDiesItSaysSoAndEndsThroughTerminate)
{
    Process compositor({"weston", "--backend=headless-backend.so", "--no-config", "--idle-time=0", "--socket=mortal",
                        "--log=" + Environment("XDG_RUNTIME_DIR") + "/mortal.log"});
    const Words listens{"grep", "-q", " 00010000 .*/mortal$", "/proc/net/unix"};
    ASSERT_TRUE(WaitUntil([&] { return Process(listens).Status() == 0; }));
    Process application(InLog("WAYLAND_DISPLAY=mortal"));
    ExpectTold({"create", "resume"});
    compositor.Signal(SIGKILL);
    EXPECT_EQ(application.Status(), 0);
    ExpectTold({"create", "resume", "terminate"});
    EXPECT_EQ(CountInLog("the compositor is gone"), 1);
}

TEST_F(Appfw, WhenTheBusDiesItEndsThroughTerminate)
{
    Events expected;
    for (const bool endsAlready : {false, true})
    {
        auto bus = std::make_unique<Process>(Events{"dbus-daemon", "--session", "--nofork", "--print-address"});
        bus->Says("\n");
        const std::string address = bus->Output().substr(0, bus->Output().find('\n'));
        Process application(InLog("DBUS_SESSION_BUS_ADDRESS=" + address));
        expected.insert(expected.end(), {"create", "resume"});
        ExpectTold(expected);
        expected.emplace_back("terminate");
        if (endsAlready)
        {
            bus->Signal(SIGSTOP);
            application.Signal(SIGTERM);
            ExpectTold(expected);
            std::this_thread::sleep_for(std::chrono::milliseconds(100)); // by now it waits for the bus
        }
        bus.reset();
        EXPECT_EQ(application.Status(), 0);
        ExpectTold(expected);
    }
}

} // namespace
