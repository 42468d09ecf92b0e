#pragma once

#include <cstdint>

namespace ostrelum::inline toolkit {

/// A colour as 0x00BBGGRR.
using Colour = std::uint32_t;

/// Each channel 0 to 255.
constexpr Colour rgb(int red, int green, int blue)
{
    return static_cast<Colour>(red & 255) | static_cast<Colour>(green & 255) << 8 |
           static_cast<Colour>(blue & 255) << 16;
}

constexpr int red_of(Colour colour)
{
    return static_cast<int>(colour & 255);
}
constexpr int green_of(Colour colour)
{
    return static_cast<int>(colour >> 8 & 255);
}
constexpr int blue_of(Colour colour)
{
    return static_cast<int>(colour >> 16 & 255);
}

inline constexpr Colour white = rgb(255, 255, 255);

} // namespace ostrelum::inline toolkit
