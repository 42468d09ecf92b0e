#include "sources/NumberText.h"

#include "sources/Value.h"

#include <array>
#include <charconv>
#include <cmath>

namespace ostrelum::inline sources {

std::string WholeText(std::int64_t number)
{
    return std::to_string(number);
}

std::string two_digits(int number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string RealText(double number, std::string_view decimal_sign)
{
    constexpr int significant_digits = 15;
    std::array<char, 32> digits{};
    // Adding 0 takes the sign off a negative zero.
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number + 0.0,
                                   std::chars_format::general, significant_digits);
    std::string text(digits.data(), end.ptr);
    if (const auto point = text.find('.'); point != std::string::npos)
        text.replace(point, 1, decimal_sign);
    return text;
}

std::int32_t rounded_down(double number)
{
    return Value(std::floor(number)).as_int32();
}

} // namespace ostrelum::inline sources
