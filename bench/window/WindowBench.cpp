#include "frame/Lifecycle.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/Pictures.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/qt/QtBackEnd.h"
#include "tests/MemoryProgram.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

/// What the window does for one event of the user or of a fade, up to the last pixel, on a toolkit
/// that draws into memory. A screen at 60 Hz leaves 16 ms for it.
namespace ostrelum {

using namespace linux_platform;
using namespace qt_platform;
namespace {

std::unique_ptr<Toolkit> qt_toolkit;

/// The program in its window, with this machine's management service and settings in memory.
class WindowProgram : public MemoryProgram {
public:
    WindowProgram()
    {
        platform.toolkit = qt_toolkit.get();
        platform.get_object = [](const std::string&) {
            return make_linux_management_service("/", qt_session_facts());
        };
        start_program();
        // The window system has to say that the window can be seen.
        platform.toolkit->DoEvents();
        paint();
    }
    ~WindowProgram() { platform.toolkit->Hide(F1); }

    /// Brings what changed to the screen before it returns.
    static void paint() { platform.toolkit->Refresh(F1); }
};

/// From the program's first step to the painted page, behind the toolkit's own start and with its
/// fonts loaded.
void StartAndPaint(benchmark::State& state)
{
    {
        const WindowProgram loads_the_fonts;
    }
    for (auto _ : state)
        const WindowProgram program;
}
BENCHMARK(StartAndPaint)->Iterations(50)->Unit(benchmark::kMillisecond);

void PaintThePage(benchmark::State& state)
{
    WindowProgram program;
    for (auto _ : state)
        program.paint();
}
BENCHMARK(PaintThePage)->Unit(benchmark::kMillisecond);

void OpenASection(benchmark::State& state)
{
    WindowProgram program;
    const int section = static_cast<int>(state.range(0));
    for (auto _ : state) {
        F1.Seccion = 0;
        LMenu_MouseDown(section, left_button, 0, 0, 0);
        program.paint();
    }
}
BENCHMARK(OpenASection)->DenseRange(1, 13)->Unit(benchmark::kMillisecond);

void StepOfThePictureFade(benchmark::State& state)
{
    WindowProgram program;
    for (auto _ : state) {
        Cnt2 = 117;
        F1.raise("TAlphaB", {.kind = EventKind::Timer});
        program.paint();
    }
}
BENCHMARK(StepOfThePictureFade)->Unit(benchmark::kMillisecond);

/// With its redrawing, its pending events and the five tints.
void StepOfASlider(benchmark::State& state, ScrollBar& slider, const char* name)
{
    WindowProgram program;
    F1.raise("Personalizar", {.kind = EventKind::Click});
    program.paint();
    for (auto _ : state) {
        slider.Value = (slider.Value + 7) % slider.Max;
        F1.raise(name, {.kind = EventKind::Scroll});
        program.paint();
    }
}
BENCHMARK_CAPTURE(StepOfASlider, Colour, F1.Scroll1, "Scroll1")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StepOfASlider, Shine, F1.Scroll2, "Scroll2")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(StepOfASlider, Transparency, F1.Scroll3, "Scroll3")
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace ostrelum

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    ostrelum::qt_toolkit =
        ostrelum::make_qt_toolkit(argc, argv, {.hand = {}, .hot_spot = {}, .desktop_entry = ""});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    ostrelum::qt_toolkit.reset();
    return 0;
}
