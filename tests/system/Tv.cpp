#include "Tv.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include <unistd.h>

namespace
{

constexpr const char* APPLICATION = "org.tizen.veskar-app";
constexpr const char* APPLICATION_PATH = "/org/tizen/veskar_app";
constexpr const char* APPLICATION_INTERFACE = "org.tizen.Application1";

std::string ReadFile(const std::string& path, std::streamoff from = 0)
{
    std::ifstream file(path, std::ios::binary);
    file.seekg(from);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

std::string Setting(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

} // namespace

TvTest::TvTest() : m_bus(sdbus::createSessionBusConnection()), m_logFile(Setting("VESKAR_TV_LOG")) {}

void TvTest::SetUp()
{
    EndApplication();
    m_logStart = static_cast<std::streamoff>(ReadFile(m_logFile).size());
}

Process TvTest::Send(const std::vector<std::string>& arguments)
{
    std::vector<std::string> command{"veskar-mw"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    const int before = CountInLog("Service complete!");
    Process process(command);
    EXPECT_TRUE(WaitUntil([&] { return CountInLog("Service complete!") > before; })) << "the request was not handled";
    return process;
}

Process TvTest::SendMessage(int uiId, int sourceId, const std::vector<std::string>& more)
{
    std::vector<std::string> arguments{
        "--ui-id", std::to_string(uiId), "--source-id", std::to_string(sourceId), "message", "--title", "T",
        "--text",  "A message"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return Send(arguments);
}

void TvTest::Press(const std::vector<std::string>& keys)
{
    std::vector<std::string> command{"veskar-remote", "press"};
    command.insert(command.end(), keys.begin(), keys.end());
    RunCommand(command);
}

std::map<std::string, std::string> TvTest::Grabs()
{
    const std::string application = std::to_string(ApplicationPid()) + "/";
    std::map<std::string, std::string> grabs;
    std::istringstream lines(RunCommand({"veskar-remote", "grabs"}));
    std::string line;
    while (std::getline(lines, line))
    {
        std::istringstream words(line);
        std::string key;
        std::string mode;
        std::string client;
        words >> key >> mode >> client;
        if (client.rfind(application, 0) == 0)
        {
            grabs[key] = mode;
        }
    }
    return grabs;
}

Picture TvTest::Shot()
{
    const std::string path = Setting("XDG_RUNTIME_DIR") + "/shot.png";
    RunCommand({"veskar-remote", "shot", path});
    return {ReadFile(path)};
}

Picture TvTest::StillShot()
{
    // Longer than a frame that is on its way, and than any pause within a motion.
    constexpr std::chrono::milliseconds STILL{300};
    Picture last = Shot();
    auto since = std::chrono::steady_clock::now();
    const auto isStill = [&]
    {
        Picture next = Shot();
        if (next != last)
        {
            last = std::move(next);
            since = std::chrono::steady_clock::now();
        }
        return std::chrono::steady_clock::now() - since >= STILL;
    };
    EXPECT_TRUE(WaitUntil(isStill)) << "the screen does not come to rest";
    return last;
}

Picture TvTest::ChangedShot(const Picture& before)
{
    EXPECT_TRUE(WaitUntil([&] { return Shot() != before; })) << "the screen stays as it is";
    return StillShot();
}

bool TvTest::IsApplicationRunning()
{
    return ApplicationPid() != 0;
}

unsigned TvTest::ApplicationPid()
{
    auto bus = sdbus::createProxy(*m_bus, "org.freedesktop.DBus", "/org/freedesktop/DBus");
    unsigned pid = 0;
    try
    {
        bus->callMethod("GetConnectionUnixProcessID")
            .onInterface("org.freedesktop.DBus")
            .withArguments(APPLICATION)
            .storeResultsTo(pid);
    }
    catch (const sdbus::Error&)
    {
        // The name has no owner.
    }
    return pid;
}

void TvTest::EndApplication()
{
    if (!IsApplicationRunning())
    {
        return;
    }
    auto application = sdbus::createProxy(*m_bus, APPLICATION, APPLICATION_PATH);
    try
    {
        application->callMethod("Terminate").onInterface(APPLICATION_INTERFACE).dontExpectReply();
    }
    catch (const sdbus::Error&)
    {
        // It ended by itself meanwhile.
    }
    ASSERT_TRUE(WaitForApplicationEnd());
}

bool TvTest::WaitForApplicationEnd()
{
    return WaitUntil([this] { return !IsApplicationRunning(); });
}

int TvTest::CountInLog(const std::string& text) const
{
    const std::string log = ReadFile(m_logFile, m_logStart);
    int count = 0;
    for (std::size_t at = log.find(text); at != std::string::npos; at = log.find(text, at + text.size()))
    {
        ++count;
    }
    return count;
}

std::string TvTest::SendRaw(const std::map<std::string, sdbus::Variant>& values, const std::string& application)
{
    std::string path = "/" + application;
    std::replace(path.begin(), path.end(), '.', '/');
    std::replace(path.begin(), path.end(), '-', '_');
    try
    {
        auto target = sdbus::createProxy(*m_bus, application, path);
        target->callMethod("AppControl").onInterface(APPLICATION_INTERFACE).withArguments(values);
        return "";
    }
    catch (const sdbus::Error& error)
    {
        return error.getName() + ": " + error.getMessage();
    }
}

std::string Answer(int uiId, int sourceId, int kind, int button, int item, const std::string& data)
{
    constexpr const char* RESULTS[] = {"answered", "", "closed", "back"};
    std::ostringstream line;
    line << R"({"uiId":)" << uiId << R"(,"sourceId":)" << sourceId << R"(,"kind":)" << kind << R"(,"result":")"
         << RESULTS[kind] << R"(","button":)" << button << R"(,"item":)" << item << R"(,"data":")" << data << "\"}\n";
    return line.str();
}

void ExpectAnswer(Process& request, const std::string& answer)
{
    const auto tells = [&answer](const char* result)
    {
        return answer.find(result) != std::string::npos;
    };
    EXPECT_EQ(request.Status(), tells("\"answered\"") ? 0 : tells("\"back\"") ? 1 : 2);
    EXPECT_EQ(request.Output(), answer);
}
