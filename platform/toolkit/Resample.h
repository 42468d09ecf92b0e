#pragma once

#include "platform/toolkit/Picture.h"

namespace ostrelum::inline toolkit {

/// Pixels with an opacity each: blue, green, red, opacity; rows from top to bottom.
struct OpacityPixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;
};

/// A bitmap's pixels, each with its opacity. Nothing for an empty or a torn bitmap.
OpacityPixels opacity_pixels(const Bitmap& bitmap);

/// The same with each colour multiplied by the pixel's opacity, as blending takes it.
OpacityPixels premultiplied(OpacityPixels pixels);

/// Premultiplied pixels at another size, each the mean of what it covers; between pixels where it
/// covers less than one.
OpacityPixels resampled(const OpacityPixels& pixels, int width, int height);

} // namespace ostrelum::inline toolkit
