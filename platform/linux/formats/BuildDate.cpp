#include "platform/linux/formats/BuildDate.h"

#include "platform/linux/text/Text.h"

#include <algorithm>
#include <array>
#include <span>

namespace ostrelum::linux_platform {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr std::array<std::string_view, 12> months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                     "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::optional<int> number(std::string_view digits, std::size_t longest)
{
    const auto value = digits.size() <= longest ? whole_number(digits) : std::nullopt;
    return value ? std::optional(static_cast<int>(*value)) : std::nullopt;
}

std::optional<year_month_day> known(std::optional<int> y, unsigned m, std::optional<int> d)
{
    const auto date = year(y.value_or(0)) / month(m) / day(static_cast<unsigned>(d.value_or(0)));
    return y && date.ok() ? std::optional(date) : std::nullopt;
}

/// "(2024-11-22)".
std::optional<year_month_day> in_brackets(std::string_view word)
{
    constexpr std::size_t length = 12;
    if (word.size() != length || word.front() != '(' || word.back() != ')' || word[5] != '-' ||
        word[8] != '-')
        return std::nullopt;
    const auto m = number(word.substr(6, 2), 2);
    return known(number(word.substr(1, 4), 4), static_cast<unsigned>(m.value_or(0)),
                 number(word.substr(9, 2), 2));
}

/// "Aug 30 12:02:04 UTC 2024": between day and year stand a time and, mostly, a time zone.
std::optional<year_month_day> written_out(std::span<const std::string_view> words)
{
    constexpr std::size_t year_digits = 4;
    const auto name = std::ranges::find(months, words[0]);
    if (name == months.end() || words.size() < 3)
        return std::nullopt;
    const auto last = std::ranges::find_if(words.subspan(2), [](std::string_view word) {
        return word.size() == year_digits && number(word, year_digits);
    });
    if (last == words.end())
        return std::nullopt;
    return known(number(*last, year_digits), static_cast<unsigned>(name - months.begin()) + 1,
                 number(words[1], 2));
}

} // namespace

std::optional<year_month_day> build_date(std::string_view line)
{
    const auto words = words_of(trimmed_space(line));
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (const auto date = in_brackets(words[i]))
            return date;
        if (const auto date = written_out(std::span(words).subspan(i)))
            return date;
    }
    return std::nullopt;
}

} // namespace ostrelum::linux_platform
