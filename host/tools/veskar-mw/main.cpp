#include "CommandLine.h"
#include "Desk.h"
#include "Report.h"

#include <iostream>

using namespace veskar;

namespace
{
void Say(const std::string& text)
{
    std::cerr << "veskar-mw: " << text << std::endl;
}

/** Flushed, since who reads it may act on it while this process goes on. */
void PrintLine(const std::string& line)
{
    std::cout << line << std::endl;
}

void WarnOfSilence(const Request& request, bool waits)
{
    constexpr int nobodysUiId = 0;
    constexpr int nobodysSourceId = 100;
    constexpr int lastModuleSourceId = 253;
    if (request.AsksForClose() && request.SourceId() <= lastModuleSourceId)
    {
        Say("a close with a source id of 0 to 253 sends no answer: who waits for the screen's answer waits in vain");
    }
    if (waits && (request.UiId() == nobodysUiId || request.SourceId() == nobodysSourceId))
    {
        Say("a screen with ui id 0 or source id 100 is never answered");
    }
}

int OpenMenu(DeskConnection& desk, const Request& request)
{
    PrintLine(MenuPositionToJson(desk.OpenMenu(request, [](const std::string& task, const std::string& action)
                                               { PrintLine(TaskToJson(task, action)); })));
    return ExitStatus::answered;
}

int Ask(DeskConnection& desk, const Request& request)
{
    const ScreenAnswer answer = desk.Ask(request);
    PrintLine(ToJson(answer));
    return StatusOf(answer);
}

int Run(const Command& command)
{
    const Request& request = command.request;
    const bool waits = command.wait && request.AsksForScreen();
    WarnOfSilence(request, waits);
    DeskConnection desk{command.timeout};
    if (waits)
    {
        return Ask(desk, request);
    }
    if (command.wait && request.AsksForMenu())
    {
        return OpenMenu(desk, request);
    }
    desk.Tell(request);
    return ExitStatus::delivered;
}
} // namespace

int main(int argc, char** argv)
{
    const auto parsed = ParseCommandLine(argc, argv);
    if (const int* status = std::get_if<int>(&parsed))
    {
        return *status;
    }
    try
    {
        return Run(std::get<Command>(parsed));
    }
    catch (const sdbus::Error& error)
    {
        const Failure failure = FailureOf(error);
        Say(failure.text);
        return failure.status;
    }
}
