#include "report/AnsiText.h"

#include <algorithm>
#include <array>

namespace ostrelum::inline report {
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

/// Bytes of the sequence that a byte begins; 1 for a byte that begins none.
std::size_t length_of(unsigned char first)
{
    if (first >= 0xF0)
        return 4;
    if (first >= 0xE0)
        return 3;
    return first >= 0xC0 ? 2 : 1;
}

/// Takes the first character off; the last one may be cut short.
char32_t next_point(std::string_view& utf8)
{
    const auto first = static_cast<unsigned char>(utf8.front());
    const std::size_t length = std::min(length_of(first), utf8.size());
    char32_t point = length == 1 ? first : first & 0x7FU >> length;
    for (const char byte : utf8.substr(1, length - 1))
        point = point << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
    utf8.remove_prefix(length);
    return point;
}

} // namespace

std::string ansi_text(std::string_view utf8)
{
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty())
        bytes += ansi_byte(next_point(utf8));
    return bytes;
}

} // namespace ostrelum::inline report
