#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace ostrelum::inline art {

/// A picture of art/pictures as it was when the program was built.
struct ArtPixels {
    int width = 0;
    int height = 0;
    /// Blue, green, red; rows from top to bottom, each filled up to a multiple of 4 bytes.
    std::span<const std::uint8_t> colours;
    /// Opacity of each pixel, 0 to 255, width * height without filling; empty for a picture without
    /// holes.
    std::span<const std::uint8_t> alpha;
};

/// The pixels of art/pictures/NAME.png; of no width for a name that is not there. "S1" is a picture
/// at its own size, "S1@2x" the same at twice the width and height.
ArtPixels art_pixels(std::string_view name);

} // namespace ostrelum::inline art
