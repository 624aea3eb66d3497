#include "CommandLine.h"
#include "CoreLimit.h"
#include "Desk.h"
#include "Report.h"
#include "Warnings.h"

#include <iostream>
#include <system_error>

using namespace veskar;

namespace
{
void Say(const std::string& text)
{
    std::cerr << "veskar-mw: " << text << std::endl;
}

/** Flushed, because a reader may react while this process still runs. */
void PrintLine(const std::string& line)
{
    std::cout << line << std::endl;
}

int OpenMenu(DeskConnection& desk, const Request& request)
{
    const DeskConnection::Menu menu = desk.OpenMenu(request);
    for (const auto& task : menu.tasks)
    {
        PrintLine(TaskToJson(task.get<0>(), task.get<1>()));
    }
    for (const int position : menu.positions)
    {
        PrintLine(MenuPositionToJson(position));
    }
    if (menu.positions.empty())
    {
        Say("the application opened no menu position for it");
    }
    return ExitStatus::ANSWERED;
}

int Ask(DeskConnection& desk, const Request& request)
{
    const ScreenAnswer answer = desk.Ask(request);
    PrintLine(ToJson(answer, request));
    return StatusOf(answer);
}

int Follow(DeskConnection& desk, const Request& progress, ProgressFeed& feed)
{
    const DeskConnection::Followed followed = desk.Follow(progress, feed);
    PrintLine(ToJson(followed.answer, progress));
    return followed.isFinished ? ExitStatus::ANSWERED : StatusOf(followed.answer);
}

int Run(const Command& command)
{
    const Request& request = command.request;
    const bool waits = command.wait && request.AsksForScreen();
    for (const std::string& warning : Warnings(request, waits))
    {
        Say(warning);
    }
    DeskConnection desk{command.timeout};
    if (!command.percentFrom.empty())
    {
        ProgressFeed feed(command.percentFrom);
        return Follow(desk, request, feed);
    }
    if (waits)
    {
        return Ask(desk, request);
    }
    if (command.wait && request.AsksForMenu())
    {
        return OpenMenu(desk, request);
    }
    desk.Tell(request);
    return ExitStatus::DELIVERED;
}

} // namespace

int main(int argc, char** argv)
{
    WriteNoCoreDump();
    const auto parsed = ParseCommandLine(argc, argv);
    if (const int* status = std::get_if<int>(&parsed))
    {
        return *status;
    }
    try
    {
        return Run(std::get<Command>(parsed));
    }
    catch (const std::system_error& error) // of a file
    {
        Say(error.what());
        return ExitStatus::BAD_USAGE;
    }
    catch (const sdbus::Error& error)
    {
        const Failure failure = FailureOf(error);
        Say(failure.text);
        return failure.status;
    }
}
