#include "bench/window/WindowEvents.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/qt/QtBackEnd.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

/// The window's events on Qt, as a rule on one that draws into memory. With OSTRELUM_NO_SERVICE=1
/// this machine's management service is left out, as on Windows.
namespace ostrelum {

using namespace linux_platform;
using namespace qt_platform;
namespace {

std::unique_ptr<Toolkit> qt_toolkit;

WindowProgram::Service service()
{
    if (std::getenv("OSTRELUM_NO_SERVICE"))
        return {};
    return
        [](const std::string&) { return make_linux_management_service("/", qt_session_facts()); };
}

/// From the program's first step to the painted page, behind the toolkit's own start and with its
/// fonts loaded.
void StartAndPaint(benchmark::State& state)
{
    {
        const WindowProgram loads_the_fonts(*qt_toolkit, service());
    }
    for (auto _ : state)
        const WindowProgram program(*qt_toolkit, service());
}
BENCHMARK(StartAndPaint)->Iterations(50)->Unit(benchmark::kMillisecond);

void PaintThePage(benchmark::State& state)
{
    const WindowProgram program(*qt_toolkit, service());
    for (auto _ : state)
        WindowProgram::paint();
}
BENCHMARK(PaintThePage)->Unit(benchmark::kMillisecond);

void time_event(benchmark::State& state, const WindowEvent& event)
{
    const WindowProgram program(*qt_toolkit, service());
    event.prepare();
    WindowProgram::paint();
    for (auto _ : state) {
        event.step();
        WindowProgram::paint();
    }
}

} // namespace
} // namespace ostrelum

int main(int argc, char** argv)
{
    using namespace ostrelum;
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    qt_toolkit = make_qt_toolkit(argc, argv, {.hand = {}, .hot_spot = {}, .desktop_entry = ""});
    for (const WindowEvent& event : window_events())
        benchmark::RegisterBenchmark(event.name.c_str(), time_event, event)
            ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    qt_toolkit.reset();
    return 0;
}
