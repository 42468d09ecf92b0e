#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace ostrelum::linux_platform {

/// The number in hexadecimal digits, with zeros in front up to `width`.
std::string upper_hex(std::uint64_t number, std::size_t width = 1);
std::string lower_hex(std::uint64_t number, std::size_t width = 1);

} // namespace ostrelum::linux_platform
