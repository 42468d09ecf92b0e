#include "platform/linux/text/NaturalOrder.h"

#include <string>

namespace ostrelum::linux_platform {
namespace {

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

/// Takes the digits off the front, without leading zeros.
std::string_view take_number(std::string_view& text)
{
    std::size_t zeros = 0;
    while (zeros < text.size() && text[zeros] == '0')
        ++zeros;
    std::size_t end = zeros;
    while (end < text.size() && is_digit(text[end]))
        ++end;
    const std::string_view number = text.substr(zeros, end - zeros);
    text.remove_prefix(end);
    return number;
}

bool starts_with_digit(std::string_view text)
{
    return !text.empty() && is_digit(text.front());
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
