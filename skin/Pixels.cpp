#include "skin/Pixels.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ostrelum::inline skin {
namespace {

/// With a base byte of 220 and the highest shine, 24, a level stays as it is.
constexpr int unchanged = 220 + 24;

/// Pixels of a stretch whose shifts lie side by side: 16 of them are three whole vectors of 16
/// bytes, so that a compiler shifts them without a loop over channels.
constexpr std::size_t stretch_bytes = std::size_t{16} * 3;

/// How each byte of a stretch is shifted. A level is held between `lowest` and `highest` first, so
/// that adding `offset` to it cannot leave the byte: no step needs more than 8 bits.
struct Shift {
    std::array<std::uint8_t, stretch_bytes> lowest{};
    std::array<std::uint8_t, stretch_bytes> highest{};
    std::array<std::uint8_t, stretch_bytes> offset{};
};

Shift shift_of(const TintColour& colour)
{
    const std::array<int, 3> base{colour.blue, colour.green, colour.red};
    Shift shift;
    for (std::size_t i = 0; i < stretch_bytes; ++i) {
        const int offset = base[i % 3] + colour.shine - unchanged;
        shift.lowest[i] = static_cast<std::uint8_t>(std::clamp(-offset, 0, 255));
        shift.highest[i] = static_cast<std::uint8_t>(std::clamp(255 - offset, 0, 255));
        shift.offset[i] = static_cast<std::uint8_t>(offset);
    }
    return shift;
}

/// `__restrict`: what is written is neither read again nor the shift itself.
void shift_bytes(std::uint8_t* __restrict dest, const std::uint8_t* __restrict grey,
                 std::size_t count, const Shift& shift)
{
    for (std::size_t i = 0; i < count; ++i) {
        // By value: std::min and std::max take references, which hides the two instructions from
        // the compiler.
        const std::uint8_t low = shift.lowest[i];
        const std::uint8_t high = shift.highest[i];
        std::uint8_t level = grey[i];
        level = level > low ? level : low;
        level = level < high ? level : high;
        dest[i] = static_cast<std::uint8_t>(level + shift.offset[i]);
    }
}

} // namespace

void tint_pixels(Bitmap& dest, const Bitmap& grey, const TintColour& colour)
{
    const Shift shift = shift_of(colour);
    const auto row_bytes = static_cast<std::size_t>(std::min(dest.width, grey.width)) * 3;
    for (int y = 0; y < std::min(dest.height, grey.height); ++y) {
        std::uint8_t* to = dest.row(y);
        const std::uint8_t* from = grey.row(y);
        std::size_t x = 0;
        for (; x + stretch_bytes <= row_bytes; x += stretch_bytes)
            shift_bytes(to + x, from + x, stretch_bytes, shift);
        shift_bytes(to + x, from + x, row_bytes - x, shift);
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
            const std::uint8_t* from =
                from_row + std::ptrdiff_t{3} * (x * source.width / dest.width);
            for (int channel = 0; channel < 3; ++channel, ++to) {
                const int mixed = from[channel] * alpha + *to * (255 - alpha);
                *to = static_cast<std::uint8_t>((mixed + 127) / 255);
            }
        }
    }
}

} // namespace ostrelum::inline skin
