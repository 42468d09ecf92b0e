#include "skin/Pixels.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace ostrelum {
namespace {

/// With a base byte of 220 and the highest shine, 24, a level stays as it is.
constexpr int Unchanged = 220 + 24;

/// Pixels of a stretch whose offsets lie side by side: 16 of them are three whole vectors of 16
/// bytes, so that a compiler adds and clamps them without a loop over channels.
constexpr std::size_t StretchPixels = 16;
constexpr std::size_t StretchBytes = StretchPixels * 3;

/// The offset of each byte of a stretch, split into what is added and what is taken off: one of the
/// two is 0, so that saturating bytes serve.
struct Offsets {
    std::array<std::uint8_t, StretchBytes> plus{};
    std::array<std::uint8_t, StretchBytes> minus{};
};

Offsets offsets_of(const TintColour& colour)
{
    const std::array<int, 3> base{colour.blue, colour.green, colour.red};
    Offsets offsets;
    for (std::size_t i = 0; i < StretchBytes; ++i) {
        const int offset = base[i % 3] + colour.shine - Unchanged;
        offsets.plus[i] = static_cast<std::uint8_t>(std::clamp(offset, 0, 255));
        offsets.minus[i] = static_cast<std::uint8_t>(std::clamp(-offset, 0, 255));
    }
    return offsets;
}

void shift_bytes(std::uint8_t* bytes, std::size_t count, const Offsets& offsets)
{
    for (std::size_t i = 0; i < count; ++i) {
        const int level = bytes[i] + offsets.plus[i] - offsets.minus[i];
        bytes[i] = static_cast<std::uint8_t>(std::clamp(level, 0, 255));
    }
}

/// The same for a whole stretch: the fixed count lets the compiler use whole vectors.
void shift_stretch(std::uint8_t* bytes, const Offsets& offsets)
{
    shift_bytes(bytes, StretchBytes, offsets);
}

} // namespace

void tint_pixels(Bitmap& bitmap, const TintColour& colour)
{
    const Offsets offsets = offsets_of(colour);
    const auto row_bytes = static_cast<std::size_t>(bitmap.width) * 3;
    for (int y = 0; y < bitmap.height; ++y) {
        std::uint8_t* row = bitmap.row(y);
        std::size_t x = 0;
        for (; x + StretchBytes <= row_bytes; x += StretchBytes)
            shift_stretch(row + x, offsets);
        shift_bytes(row + x, row_bytes - x, offsets);
    }
}

void blend_pixels(Bitmap& dest, const Bitmap& source, std::uint8_t alpha)
{
    if (source.width == 0 || source.height == 0)
        return;
    for (int y = 0; y < dest.height; ++y) {
        std::uint8_t* to = dest.row(y);
        const std::uint8_t* from_row = source.row(y * source.height / dest.height);
        for (int x = 0; x < dest.width; ++x) {
            const std::uint8_t* from = from_row + 3 * (x * source.width / dest.width);
            for (int channel = 0; channel < 3; ++channel, ++to) {
                const int mixed = from[channel] * alpha + *to * (255 - alpha);
                *to = static_cast<std::uint8_t>((mixed + 127) / 255);
            }
        }
    }
}

} // namespace ostrelum
