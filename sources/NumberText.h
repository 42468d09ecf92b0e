#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrelum::inline sources {

/// The decimal digits of a number, with a minus sign where it is negative.
std::string WholeText(std::int64_t number);

/// A number from 0 to 99 with two digits.
std::string two_digits(int number);

/// A number with up to 15 significant digits and no trailing zeros, such as "2.394", "3" and "0.8".
/// `decimal_sign` stands between whole part and fraction.
std::string RealText(double number, std::string_view decimal_sign);

/// The number rounded down. Throws Failure for what a signed 32-bit number cannot hold.
std::int32_t rounded_down(double number);

} // namespace ostrelum::inline sources
