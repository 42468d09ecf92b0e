#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace ostrelum {

/// The picture art/pictures/NAME.png as it was when the program was built, as the bytes of a BMP
/// file; empty for a name that is not there. "S1" is a picture at its own size, "S1@2x" the same at
/// twice the width and height.
std::span<const std::uint8_t> picture_file(std::string_view name);

} // namespace ostrelum
