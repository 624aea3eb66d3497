/** The application's frame; the test plays the platform's part of its life. */
#pragma once

#include "Screen.h"

// NOLINTNEXTLINE(bugprone-reserved-identifier): the linker's name for the application's main.
extern "C" int __real_main(int argc, char** argv);

struct Frame : TvTest
{
    /** The application's main; `life` is what the platform does while its loop runs. */
    static int Run(std::function<void()> life, Texts arguments = {})
    {
        tv.Forget();
        tv.whileTheLoopRuns = std::move(life);
        std::string name = "veskar-app";
        std::vector<char*> argv{name.data()};
        for (std::string& argument : arguments)
        {
            argv.push_back(argument.data());
        }
        argv.push_back(nullptr);
        return __real_main(static_cast<int>(argv.size()) - 1, argv.data());
    }
    static bool Create() { return tv.application.create(tv.applicationData); }
    static void Pause() { tv.application.pause(tv.applicationData); }
    static void Resume() { tv.application.resume(tv.applicationData); }
    static void Terminate() { tv.application.terminate(tv.applicationData); }
    static void ShowMessage(const char* uiId, const char* sourceId = "255")
    {
        app_control_s request{"",
                              {{"signal_type_key", "signal_tvservice"},
                               {"signal_tvservice_key", "ui_type_message"},
                               {"ui_param_ui_id", uiId},
                               {"ui_param_source_id", sourceId}}};
        tv.application.app_control(&request, tv.applicationData);
    }
};
