#include "Tv.h"

#include <fstream>
#include <regex>
#include <sstream>

#include <unistd.h>

using veskar::Applications::INTERFACE;

namespace
{

/** The tool gives up a little before the test does. */
const std::string WAIT = std::to_string(PATIENCE.count() - 1);

std::string ReadFile(const std::string& path, std::streamoff from = 0)
{
    std::ifstream file(path, std::ios::binary);
    file.seekg(from);
    return {std::istreambuf_iterator<char>(file), {}};
}

/** The error that a call on the bus ends with, or nothing. */
std::string ErrorOf(const std::function<void()>& call)
{
    try
    {
        call();
        return "";
    }
    catch (const sdbus::Error& error)
    {
        return error.getName() + ": " + error.getMessage();
    }
}

} // namespace

TvTest::TvTest() : m_bus(sdbus::createSessionBusConnection()), m_logFile(Environment("VESKAR_TV_LOG")) {}

void TvTest::SetUp()
{
    EndApplication();
    m_logStart = static_cast<std::streamoff>(ReadFile(m_logFile).size());
}

Process TvTest::Send(const Words& arguments)
{
    const int before = CountInLog("Service complete!");
    Process process(Words{"veskar-mw"} + arguments);
    EXPECT_TRUE(WaitUntil([&] { return CountInLog("Service complete!") > before; })) << "the request was not handled";
    return process;
}

Process TvTest::SendMessage(int uiId, int sourceId, const Words& more)
{
    const Words ids{"--ui-id", std::to_string(uiId), "--source-id", std::to_string(sourceId)};
    return Send(ids + Words{"message", "--title", "T", "--text", "A message"} + more);
}

void TvTest::Press(const Words& keys)
{
    RunCommand(Words{"veskar-remote", "press", "--timeout", WAIT} + keys);
}

void TvTest::WaitForScreen(int uiId)
{
    RunCommand({"veskar-remote", "wait", "--shown", "--timeout", WAIT, "--ui-id", std::to_string(uiId)});
}

std::map<std::string, std::string> TvTest::Grabs(const std::string& program)
{
    const std::string wanted = program.empty() ? std::to_string(ApplicationPid()) : program;
    std::map<std::string, std::string> grabs;
    std::istringstream words(RunCommand({"veskar-remote", "grabs"}));
    for (std::string key, mode, client; words >> key >> mode >> client;)
    {
        const std::size_t slash = client.find('/'); // between the process and the program
        if (wanted == client.substr(0, slash) || wanted == client.substr(slash + 1))
        {
            grabs[key] = mode;
        }
    }
    return grabs;
}

bool TvTest::NumberPadIs(const std::string& value)
{
    const Words get{"veskar-setting", "get", PAD_SHOWN};
    return WaitUntil([&] { return RunCommand(get) == value + "\n"; });
}

Picture TvTest::Shot()
{
    const std::string path = Environment("XDG_RUNTIME_DIR") + "/shot.png";
    RunCommand({"veskar-remote", "shot", path});
    return std::hash<std::string>()(ReadFile(path));
}

Picture TvTest::StillShot()
{
    RunCommand({"veskar-remote", "wait", "--still", "--timeout", WAIT});
    return Shot();
}

Picture TvTest::ChangedShot(const Picture& before)
{
    EXPECT_TRUE(WaitUntil([&] { return Shot() != before; })) << "the screen stays as it is";
    return StillShot();
}

unsigned TvTest::ApplicationPid(const std::string& application)
{
    auto bus = sdbus::createProxy(*m_bus, "org.freedesktop.DBus", "/org/freedesktop/DBus");
    unsigned pid = 0;
    // An error says that the name has no owner.
    ErrorOf(
        [&]
        {
            bus->callMethod("GetConnectionUnixProcessID")
                .onInterface("org.freedesktop.DBus")
                .withArguments(application)
                .storeResultsTo(pid);
        });
    return pid;
}

void TvTest::EndApplication()
{
    if (!IsApplicationRunning())
    {
        return;
    }
    ErrorOf([this] { Call("Terminate"); }); // it may have ended in the meantime
    ASSERT_TRUE(WaitForApplicationEnd());
}

void TvTest::Call(const std::string& method, const std::string& application)
{
    sdbus::createProxy(*m_bus, application, veskar::PathOf(application))->callMethod(method).onInterface(INTERFACE);
}

Process TvTest::StandFor(const std::string& applications)
{
    return Process({"sh", "-c", "exec veskar-services --own " + applications + " 2>&1"});
}

std::string TvTest::Log() const
{
    return ReadFile(m_logFile, m_logStart);
}

int TvTest::CountInLog(const std::string& text) const
{
    // The log folds equal lines.
    const std::regex folded("\\(([0-9]+) more times\\)$");
    std::istringstream log(Log());
    int count = 0;
    for (std::string line; std::getline(log, line);)
    {
        if (line.find(text) != std::string::npos)
        {
            std::smatch times;
            count += std::regex_search(line, times, folded) ? std::stoi(times[1]) : 1;
        }
    }
    return count;
}

std::string TvTest::SendRaw(const std::map<std::string, sdbus::Variant>& values, const std::string& application)
{
    auto target = sdbus::createProxy(*m_bus, application, veskar::PathOf(application));
    return ErrorOf([&] { target->callMethod("AppControl").onInterface(INTERFACE).withArguments(values); });
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
    // Texts of the request may follow, in the same line.
    const std::string numbers = answer.substr(0, answer.find('}'));
    EXPECT_THAT(request.Output(), testing::AllOf(testing::StartsWith(numbers), testing::EndsWith("}\n")));
}
