// The window's events on Windows' own controls, without its management service. Usage:
// ostrelum-window-bench [PART OF A NAME]
#include "bench/window/WindowEvents.h"
#include "platform/windows/toolkit/WindowsBackEnd.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

#include <windows.h>

using namespace ostrelum;

namespace {

constexpr std::size_t rounds = 51;

/// The median, in milliseconds.
double median_time(const std::function<void()>& work)
{
    std::array<double, rounds> times{};
    for (double& time : times) {
        const auto start = std::chrono::steady_clock::now();
        work();
        // What the system has put off.
        GdiFlush();
        const auto end = std::chrono::steady_clock::now();
        time = std::chrono::duration<double, std::milli>(end - start).count();
    }
    std::ranges::nth_element(times, times.begin() + rounds / 2);
    return times[rounds / 2];
}

void print(const std::string& name, double milliseconds)
{
    std::printf("| %s | %.2f |\n", name.c_str(), milliseconds);
}

void start_and_paint()
{
    const auto toolkit = windows_platform::make_windows_toolkit({});
    const WindowProgram program(*toolkit);
}

void time_event(const WindowEvent& event)
{
    const auto toolkit = windows_platform::make_windows_toolkit({});
    const WindowProgram program(*toolkit);
    event.prepare();
    WindowProgram::paint();
    print(event.name, median_time([&] {
              event.step();
              WindowProgram::paint();
          }));
}

} // namespace

int main(int argc, char** argv)
{
    const std::string part = argc > 1 ? argv[1] : "";
    std::puts("| event | ms |\n|---|---|");
    if (part.empty())
        print("StartAndPaint", median_time(start_and_paint));
    for (const WindowEvent& event : window_events()) {
        if (event.name.find(part) != event.name.npos)
            time_event(event);
    }
}
