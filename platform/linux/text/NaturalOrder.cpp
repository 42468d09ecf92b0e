#include "platform/linux/text/NaturalOrder.h"

#include <algorithm>
#include <string>

namespace ostrelum::linux_platform {
namespace {

constexpr std::string_view digits = "0123456789";

/// Takes the digits off the front, without leading zeros.
std::string_view take_number(std::string_view& text)
{
    const std::size_t end = std::min(text.find_first_not_of(digits), text.size());
    std::string_view number = text.substr(0, end);
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    text.remove_prefix(end);
    return number;
}

bool starts_with_digit(std::string_view text)
{
    return !text.empty() && digits.find(text.front()) != std::string_view::npos;
}

} // namespace

bool natural_less(std::string_view a, std::string_view b)
{
    const std::string_view whole_a = a;
    const std::string_view whole_b = b;
    while (!a.empty() && !b.empty()) {
        if (starts_with_digit(a) && starts_with_digit(b)) {
            const std::string_view number_a = take_number(a);
            const std::string_view number_b = take_number(b);
            if (number_a.size() != number_b.size())
                return number_a.size() < number_b.size();
            if (number_a != number_b)
                return number_a < number_b;
            continue;
        }
        if (a.front() != b.front())
            return std::char_traits<char>::lt(a.front(), b.front());
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    // Names that differ in leading zeros alone still have an order.
    return a.empty() && b.empty() ? whole_a < whole_b : a.empty();
}

} // namespace ostrelum::linux_platform
