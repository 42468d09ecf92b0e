#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace ostrelum {

/// The bytes of art/pictures/NAME.bmp as they were when the program was built; empty for a name
/// that is not there.
std::span<const std::uint8_t> picture_file(std::string_view name);

} // namespace ostrelum
