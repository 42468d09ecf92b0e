#include "console/ConsoleProgram.h"
#include "console/linux/LinuxHost.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

/// The pages on a real management service: this machine's, or that of the recorded machine whose
/// folder the variable OSTRELUM_BENCH_ROOT names.
namespace ostrelum {

using namespace console;

namespace {

/// Asked anew each time, as the window asks.
std::unique_ptr<HostedMachine> opened_machine()
{
    const char* root = std::getenv("OSTRELUM_BENCH_ROOT");
    return machine_with(linux_platform::Sysroot(root ? root : "/"), {});
}

void OpenMachinePage(benchmark::State& state)
{
    const auto machine = opened_machine();
    ConsoleProgram program(*machine, "English");
    const int section = static_cast<int>(state.range(0));
    // From another page each time: a page may keep what it has while it stays open.
    for (auto _ : state) {
        F1.Seccion = 0;
        LMenu_MouseDown(section, left_button, 0, 0, 0);
    }
}
BENCHMARK(OpenMachinePage)->DenseRange(1, 13)->Unit(benchmark::kMicrosecond);

/// One tick of the live refresh, on the pages that have it.
void RefreshMachinePage(benchmark::State& state)
{
    const auto machine = opened_machine();
    ConsoleProgram program(*machine, "English");
    LMenu_MouseDown(static_cast<int>(state.range(0)), left_button, 0, 0, 0);
    for (auto _ : state)
        F1.raise("Timer1", {.kind = EventKind::Timer});
}
BENCHMARK(RefreshMachinePage)->Arg(2)->Arg(4)->Arg(6)->Arg(13)->Unit(benchmark::kMicrosecond);

void CollectMachineReport(benchmark::State& state)
{
    const auto machine = opened_machine();
    ConsoleProgram program(*machine, "English");
    for (auto _ : state)
        benchmark::DoNotOptimize(program.report("text").size());
}
BENCHMARK(CollectMachineReport)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace ostrelum
