#include "platform/linux/text/Hex.h"

#include <algorithm>
#include <string_view>

namespace ostrelum::linux_platform {
namespace {

std::string written(std::uint64_t number, std::size_t width, std::string_view digits)
{
    std::string text;
    for (; number != 0 || text.size() < width; number /= digits.size())
        text += digits[number % digits.size()];
    std::ranges::reverse(text);
    return text;
}

} // namespace

std::string upper_hex(std::uint64_t number, std::size_t width)
{
    return written(number, width, "0123456789ABCDEF");
}

std::string lower_hex(std::uint64_t number, std::size_t width)
{
    return written(number, width, "0123456789abcdef");
}

} // namespace ostrelum::linux_platform
