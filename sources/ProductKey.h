#pragma once

#include "platform/system/Registry.h"

#include <array>
#include <cstdint>
#include <string>

namespace ostrelum::inline sources {

/// A product key as the system packs it: one unsigned number, the least significant byte first.
using PackedKey = std::array<std::uint8_t, 15>;

/// The printed form of a packed key: 25 digits to the base 24, in groups of five joined by "-".
std::string product_key(PackedKey packed);

/// The product key under which the operating system was installed, in its printed form. Empty where
/// the registry does not hold it.
std::string ProductKeyText(Registry& registry);

} // namespace ostrelum::inline sources
