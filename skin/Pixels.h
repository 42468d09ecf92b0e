#pragma once

#include "platform/toolkit/Picture.h"

#include <cstdint>

namespace ostrelum::inline skin {

/// What turns a grey picture into a coloured one.
struct TintColour {
    /// Bytes of the skin colour.
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    /// Brightness, 0 to 24.
    int shine = 0;
};

/// Writes the tinted form of a grey bitmap into another one of its size: each channel becomes the
/// grey level + the colour's byte + shine - 244, held within 0 to 255. The bytes that fill a row up
/// are not touched.
void tint_pixels(Bitmap& dest, const Bitmap& grey, const TintColour& colour);

/// Draws `source` over `dest` in place with a constant opacity of alpha / 255, stretched to the
/// size of `dest` by the nearest pixel where the sizes differ.
void blend_pixels(Bitmap& dest, const Bitmap& source, std::uint8_t alpha);

} // namespace ostrelum::inline skin
