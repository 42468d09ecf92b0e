#include "frame/Lifecycle.h"
#include "report/Body.h"
#include "report/Documents.h"
#include "report/Report.h"
#include "tests/report/ReportProgram.h"

#include <benchmark/benchmark.h>

namespace ostrelum {
namespace {

/// A body of the size of a report of a large machine: twelve sections of seven rows.
std::string large_body()
{
    F2.Tb.clear();
    const ReportRow row{"Total virtual memory:", "A value of some forty characters, as they are"};
    for (int section = 0; section < 12; ++section) {
        write_heading("Operating system");
        write_rows({row, row, row, row, row, row, row});
    }
    return std::exchange(F2.Tb, "");
}

/// From the finished body to the four finished documents.
void AssembleDocuments(benchmark::State& state)
{
    MemoryProgram program;
    load_program();
    const std::string body = large_body();
    const ReportLook look{.title = Trad[Text::ReportTitle], .red = 0, .green = 150, .blue = 255};
    for (auto _ : state) {
        for (const DocumentFormat* format : document_formats)
            benchmark::DoNotOptimize(finished_document(*format, look, format->head(look), body));
    }
}
BENCHMARK(AssembleDocuments)->Unit(benchmark::kMicrosecond);

/// A whole report of a scripted machine: what the program itself adds to seventeen queries.
void MakeReport(benchmark::State& state)
{
    ReportProgram program;
    load_program();
    for (auto _ : state) {
        make_report();
        program.script.asked.clear();
    }
}
BENCHMARK(MakeReport)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace ostrelum
