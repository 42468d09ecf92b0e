#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The figures of a processor.
namespace ostrelum::inline sources {

/// A clock speed in MHz as GHz of 1000 MHz, cut after four characters: 2394 is "2.39 Ghz".
std::string ClockText(std::int32_t megahertz, std::string_view decimal_sign);

/// The number of KB that a cache has, as text: two or three characters stand for KB, four are cut
/// to whole MB. Empty for text of any other length, "0" too. Throws Failure for four characters
/// that are no number.
std::string CacheText(std::string_view kilobytes);

} // namespace ostrelum::inline sources
