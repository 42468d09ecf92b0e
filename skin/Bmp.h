#pragma once

#include "platform/toolkit/Picture.h"

#include <cstdint>
#include <optional>
#include <span>

namespace ostrelum {

/// Reads an uncompressed bottom-up BMP file of 24 bits a pixel, or of 32 bits with straight alpha
/// in the fourth byte, which becomes the coverage. Nothing for any other file, or one that ends too
/// early.
std::optional<Bitmap> read_bmp(std::span<const std::uint8_t> file);

} // namespace ostrelum
