#include "frame/Lifecycle.h"
#include "frame/Pictures.h"
#include "skin/Pixels.h"
#include "skin/Skin.h"
#include "tests/MemoryProgram.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

namespace ostrelum {
namespace {

/// The five skin pictures of the main window.
std::vector<Bitmap> skin_bitmaps()
{
    std::vector<Bitmap> bitmaps;
    for (const char* name : {"S1", "BM", "S2", "S3", "S4"})
        bitmaps.push_back(art_picture(name).bitmap());
    return bitmaps;
}

std::int64_t bytes_of(const std::vector<Bitmap>& bitmaps)
{
    std::int64_t bytes = 0;
    for (const Bitmap& bitmap : bitmaps)
        bytes += static_cast<std::int64_t>(bitmap.bytes.size());
    return bytes;
}

/// Tinting the window's five skin pictures, as a step of the colour slider does.
void TintFivePictures(benchmark::State& state)
{
    MemoryProgram program;
    start_program();
    for (auto _ : state) {
        tint_skin();
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * bytes_of(skin_bitmaps()));
}
BENCHMARK(TintFivePictures);

/// The measure for it: a memory copy of the same bytes.
void CopyFivePictures(benchmark::State& state)
{
    const std::vector<Bitmap> stored = skin_bitmaps();
    std::vector<Bitmap> shown = stored;
    for (auto _ : state) {
        for (std::size_t i = 0; i < stored.size(); ++i)
            std::memcpy(shown[i].bytes.data(), stored[i].bytes.data(), stored[i].bytes.size());
        benchmark::DoNotOptimize(shown.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * bytes_of(stored));
}
BENCHMARK(CopyFivePictures);

/// One step of the cross-fade of a page picture.
void BlendPagePicture(benchmark::State& state)
{
    const Bitmap from = art_picture("Sec1").bitmap();
    const Bitmap to = art_picture("Sec8").bitmap();
    for (auto _ : state) {
        Bitmap shown = from;
        blend_pixels(shown, to, 130);
        benchmark::DoNotOptimize(shown.bytes.data());
    }
}
BENCHMARK(BlendPagePicture);

} // namespace
} // namespace ostrelum
