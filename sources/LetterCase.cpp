#include "sources/LetterCase.h"

#include "sources/LetterCaseTable.h"
#include "sources/Utf8.h"

#include <algorithm>
#include <span>

namespace ostrelum::inline sources {
namespace {

constexpr bool is_in_order(std::span<const CaseRun> runs)
{
    const auto overlap = std::ranges::adjacent_find(
        runs, [](const CaseRun& run, const CaseRun& next) { return run.last >= next.first; });
    return overlap == runs.end();
}
static_assert(is_in_order(capitals) && is_in_order(small_letters));

char32_t mapped(std::span<const CaseRun> runs, char32_t letter)
{
    const auto run = std::ranges::lower_bound(runs, letter, {}, &CaseRun::last);
    if (run == runs.end() || letter < run->first || (letter - run->first) % run->step != 0)
        return letter;
    return static_cast<char32_t>(static_cast<int>(letter) + run->distance);
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
    return mapped(capitals, character);
}

char32_t lower_case(char32_t character)
{
    return mapped(small_letters, character);
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
