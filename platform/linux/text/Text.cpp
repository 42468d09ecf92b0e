#include "platform/linux/text/Text.h"

#include "sources/Utf8.h"

#include <algorithm>
#include <charconv>

namespace ostrelum::linux_platform {

std::string_view trimmed_space(std::string_view text)
{
    constexpr std::string_view space = " \t\r\n\v\f";
    const std::size_t start = std::min(text.find_first_not_of(space), text.size());
    return text.substr(start, text.find_last_not_of(space) + 1 - start);
}

std::vector<std::string_view> lines_of(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::vector<std::string_view> words_of(std::string_view text)
{
    const auto is_blank = [](char c) { return c == ' ' || c == '\t'; };
    std::vector<std::string_view> words;
    for (auto at = text.begin(); at != text.end();) {
        const auto start = std::find_if_not(at, text.end(), is_blank);
        at = std::find_if(start, text.end(), is_blank);
        if (start != at)
            words.emplace_back(start, at);
    }
    return words;
}

std::optional<std::string_view> value_behind(std::string_view text, std::string_view label,
                                             char separator)
{
    if (text.find(label) == std::string_view::npos)
        return std::nullopt;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        const std::size_t sign = line.find(separator);
        if (sign != std::string_view::npos && trimmed_space(line.substr(0, sign)) == label)
            return trimmed_space(line.substr(sign + 1));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return std::nullopt;
}

std::optional<std::uint64_t> whole_number(std::string_view text, int base)
{
    std::uint64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, base);
    if (read.ec != std::errc() || read.ptr != end)
        return std::nullopt;
    return number;
}

std::optional<std::uint64_t> sum_of(std::uint64_t a, std::uint64_t b)
{
    return a <= UINT64_MAX - b ? std::optional(a + b) : std::nullopt;
}

std::optional<std::string> text_or_none(std::string_view raw)
{
    const std::string line = made_one_line(made_valid_utf8(raw));
    const std::string_view text = trimmed_space(line);
    return text.empty() ? std::nullopt : std::optional<std::string>(text);
}

} // namespace ostrelum::linux_platform
