#include "frame/Lifecycle.h"
#include "frame/Navigation.h"
#include "tests/MemoryProgram.h"

#include <benchmark/benchmark.h>

namespace ostrelum {
namespace {

constexpr const char* firmware_query =
    "Select Name, Manufacturer, SMBIOSBIOSVersion, ReleaseDate, SerialNumber from Win32_BIOS";

/// Opening the firmware page on the memory toolkit with a scripted service: what the program itself
/// adds to a query.
void OpenPage(benchmark::State& state)
{
    MemoryProgram program;
    program.script.results[firmware_query] = {
        Instance({{"Name", "Boot 7"},
                  {"Manufacturer", "Maker"},
                  {"SMBIOSBIOSVersion", "1.2"},
                  {"ReleaseDate", "20120315000000.000000+000"},
                  {"SerialNumber", "12345"}})};
    start_program();
    for (auto _ : state) {
        LMenu_MouseDown(8, left_button, 0, 0, 0);
        program.script.asked.clear();
        program.toolkit.cursors.clear();
    }
}
BENCHMARK(OpenPage);

} // namespace
} // namespace ostrelum
