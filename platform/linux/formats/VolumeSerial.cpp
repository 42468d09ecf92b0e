#include "platform/linux/formats/VolumeSerial.h"

#include <algorithm>
#include <cctype>

namespace ostrelum::linux_platform {
namespace {

bool is_hex(std::string_view text)
{
    return std::ranges::all_of(
        text, [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; });
}

std::string upper(std::string_view hex)
{
    std::string text(hex);
    for (char& c : text)
        c = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
    return text;
}

} // namespace

std::optional<std::string> serial_of_identity(std::string_view identity, std::string_view type)
{
    constexpr std::size_t serial_digits = 8;
    std::string digits;
    if (identity.size() == 9 && identity[4] == '-')
        digits = std::string(identity.substr(0, 4)) + std::string(identity.substr(5));
    else if (identity.size() == 16 && is_hex(identity))
        digits =
            identity.substr(type == "NTFS" ? identity.size() - serial_digits : 0, serial_digits);
    else if (identity.size() == 36 && identity[8] == '-')
        digits = identity.substr(0, serial_digits);
    if (digits.empty() || !is_hex(digits))
        return std::nullopt;
    return upper(digits);
}

} // namespace ostrelum::linux_platform
