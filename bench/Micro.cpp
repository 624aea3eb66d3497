/** What a request, a log line and a timer take of the main thread. */
#include "AppControl.h"
#include "IWindowManager.h"
#include "OneShotTimerCallback.h"
#include "ServiceProcessor.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <dlog.h>
#include <malloc.h>
#include <string>

namespace
{

/** Shows nothing: what is measured is the reading. */
class NoScreens : public VESKAR_APP::IWindowManager
{
public:
    using T = const Text&;
    using Ts = const Texts&;
    using Byte = unsigned char;
    bool ShowMmiMessage(int, Byte, T, T, T, T, Ts, bool) override { return true; }
    bool ShowMmiList(int, Byte, T, T, T, T, bool, Ts, Ts, bool) override { return true; }
    bool ShowMmiPinEntry(int, Byte, T, T, T, Byte, T) override { return true; }
    bool ShowProgress(int, Byte, T, T, T, Byte) override { return true; }
    bool ShowLoading(int, Byte, Text, Ts, int) override { return true; }
    bool ShowMessage(int, Byte, T, T, T, T, Ts, bool) override { return true; }
    bool ShowImage(int, Byte, T, T, T, T, int, int, Ts, bool) override { return true; }
    bool ShowList(int, Byte, T, T, T, Ts, T, bool, Ts, bool) override { return true; }
    bool ShowMultipleList(int, Byte, T, T, T, Ts, T, bool, Ts, bool) override { return true; }
    bool ShowPinManager(int, Byte, T, T, T, Byte, T) override { return true; }
    bool ShowMultipleImageList(int, Byte, T, T, T, Ts, T, bool, Ts, Ts, int, int, bool) override { return true; }
    bool ShowTestPopup(int, Byte, int) override { return true; }
    bool Close(int, Byte) override { return true; }
    bool Test(int) override { return true; }
};

/** A list that marks rows, which reads the most keys, and others up to thirty in all. */
app_control_s RequestOfThirtyKeys()
{
    app_control_s request;
    request.data = {{"signal_type_key", "signal_tvservice"},
                    {"signal_tvservice_key", "ui_type_multiple_image_list"},
                    {"ui_param_ui_id", "7"},
                    {"ui_param_source_id", "255"},
                    {"ui_param_title", "A title of usual length"},
                    {"ui_param_sub", "And what is said below it"},
                    {"ui_param_bottom", "The last line"},
                    {"ui_param_buttons", app_control_s::Array{"Renew", "Later"}},
                    {"ui_param_entries", app_control_s::Array{"One", "Two", "Three", "Four"}},
                    {"ui_param_format", "L"},
                    {"ui_param_header", "0"},
                    {"ui_param_multiple_image_locations", app_control_s::Array{"/1.png", "/2.png", "/3.png", "/4.png"}},
                    {"ui_param_image_width", "400"},
                    {"ui_param_image_height", "300"},
                    {"ui_param_selectable", "1"}};
    for (int i = 0; request.data.size() < 30; ++i)
    {
        request.data["another_key_" + std::to_string(i)] = "a value that no screen reads";
    }
    return request;
}

void RequestToItsScreen(benchmark::State& state)
{
    NoScreens screens;
    VESKAR_APP::ServiceProcessor processor(screens);
    app_control_s request = RequestOfThirtyKeys();
    processor.HandleService(&request);
    const auto before = mallinfo2().uordblks;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(processor.HandleService(&request));
    }
    state.counters["kept_bytes"] = static_cast<double>(mallinfo2().uordblks) - static_cast<double>(before);
}
BENCHMARK(RequestToItsScreen);

void LogLineLeftOut(benchmark::State& state)
{
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(
            __dlog_print(LOG_ID_MAIN, DLOG_DEBUG, "VESKAR", "%s: %s(%d) > %s", "File.cpp", "Function", 42, "a line"));
    }
}
BENCHMARK(LogLineLeftOut);

void ArmedTimerRestarted(benchmark::State& state)
{
    VESKAR_APP::OneShotTimerCallback timer([] {});
    timer.StartTimer(60'000);
    for (auto _ : state)
    {
        timer.StartTimer(60'000);
    }
    timer.CancelTimer();
}
BENCHMARK(ArmedTimerRestarted)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    setenv("VESKAR_LOG", "error", 1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
