#include "sources/LetterCase.h"

#include "sources/Utf8.h"

#include <algorithm>
#include <array>

namespace ostrelum::inline sources {
namespace {

/// Capitals from `first` to `last`, every `step`th character; each one's small letter stands
/// `distance` behind it.
struct Capitals {
    char32_t first;
    char32_t last;
    char32_t step;
    char32_t distance;

    constexpr bool hold(char32_t character) const
    {
        return character >= first && character <= last && (character - first) % step == 0;
    }
};

/// Unicode Character Database, simple case mappings of Basic Latin to Latin Extended-A, Greek and
/// Coptic up to U+03CE, Cyrillic, Cyrillic Supplement and Latin Extended Additional.
constexpr auto capitals = std::to_array<Capitals>({
    {U'A', U'Z', 1, 32},       {0x00C0, 0x00D6, 1, 32}, {0x00D8, 0x00DE, 1, 32},
    {0x0100, 0x012E, 2, 1},    {0x0132, 0x0136, 2, 1},  {0x0139, 0x0147, 2, 1},
    {0x014A, 0x0176, 2, 1},    {0x0179, 0x017D, 2, 1},  {0x0386, 0x0386, 1, 38},
    {0x0388, 0x038A, 1, 37},   {0x038C, 0x038C, 1, 64}, {0x038E, 0x038F, 1, 63},
    {0x0391, 0x03A1, 1, 32},   {0x03A3, 0x03AB, 1, 32}, {0x0400, 0x040F, 1, 80},
    {0x0410, 0x042F, 1, 32},   {0x0460, 0x0480, 2, 1},  {0x048A, 0x04BE, 2, 1},
    {0x04C0, 0x04C0, 1, 0x0F}, {0x04C1, 0x04CD, 2, 1},  {0x04D0, 0x052E, 2, 1},
    {0x1E00, 0x1E94, 2, 1},    {0x1EA0, 0x1EFE, 2, 1},
});

/// Letters whose way back leads to another letter.
struct OneWay {
    char32_t from;
    char32_t to;
};
constexpr auto upper_only = std::to_array<OneWay>({{0x00B5, 0x039C},   // micro sign
                                                   {0x00FF, 0x0178},   // y with diaeresis
                                                   {0x0131, U'I'},     // dotless i
                                                   {0x017F, U'S'},     // long s
                                                   {0x03C2, 0x03A3},   // final sigma
                                                   {0x1E9B, 0x1E60}}); // long s with dot
constexpr auto lower_only = std::to_array<OneWay>({{0x0130, U'i'},     // I with dot
                                                   {0x0178, 0x00FF},   // Y with diaeresis
                                                   {0x1E9E, 0x00DF}}); // sharp s

template <std::size_t Count>
char32_t mapped(const std::array<OneWay, Count>& letters, char32_t character)
{
    const auto row = std::ranges::find(letters, character, &OneWay::from);
    return row == letters.end() ? character : row->to;
}

/// Appends a character of at most three bytes, the longest that have case here.
void append(std::string& text, char32_t character)
{
    const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80)
        return put(character);
    if (character < 0x800)
        put(0xC0U | character >> 6U);
    else {
        put(0xE0U | character >> 12U);
        put(0x80U | (character >> 6U & 0x3FU));
    }
    put(0x80U | (character & 0x3FU));
}

std::string each_mapped(std::string_view text, char32_t (*map)(char32_t))
{
    std::string result;
    while (!text.empty()) {
        const Utf8Character next = leading_character(text);
        const char32_t wanted = map(next.point);
        if (wanted != next.point)
            append(result, wanted);
        else
            result.append(text.substr(0, next.length));
        text.remove_prefix(next.length);
    }
    return result;
}

} // namespace

char32_t upper_case(char32_t character)
{
    for (const Capitals& row : capitals) {
        if (row.hold(character - row.distance))
            return character - row.distance;
    }
    return mapped(upper_only, character);
}

char32_t lower_case(char32_t character)
{
    for (const Capitals& row : capitals) {
        if (row.hold(character))
            return character + row.distance;
    }
    return mapped(lower_only, character);
}

std::string upper_case(std::string_view text)
{
    return each_mapped(text, upper_case);
}

std::string lower_case(std::string_view text)
{
    return each_mapped(text, lower_case);
}

} // namespace ostrelum::inline sources
