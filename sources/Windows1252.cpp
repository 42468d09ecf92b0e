#include "sources/Windows1252.h"

#include "sources/Utf8.h"

#include <algorithm>
#include <array>

namespace ostrelum::inline sources {
namespace {

/// Code points of the bytes 0x80 to 0x9F. The five that the page leaves open stand for the control
/// characters of the same number. Source: Unicode Consortium, mapping table CP1252.
constexpr std::array<char32_t, 32> block80{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ansi_byte(char32_t point)
{
    if (point < 0x80 || (point >= 0xA0 && point <= 0xFF))
        return static_cast<char>(point);
    const auto found = std::ranges::find(block80, point);
    return found == block80.end() ? '?' : static_cast<char>(0x80 + (found - block80.begin()));
}

} // namespace

std::string windows_1252(std::string_view utf8)
{
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const Utf8Character next = leading_character(utf8);
        bytes += ansi_byte(next.point);
        utf8.remove_prefix(next.length);
    }
    return bytes;
}

} // namespace ostrelum::inline sources
