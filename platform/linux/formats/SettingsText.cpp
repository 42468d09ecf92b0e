#include "platform/linux/formats/SettingsText.h"

#include "platform/linux/formats/SettingsLine.h"
#include "sources/Ascii.h"

#include <algorithm>

namespace ostrelum::linux_platform {

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::string_view opening =
    "# Settings of Dervalin Ostrelum. They may be changed by hand.\n";

struct Line {
    /// Without the line end.
    Span text;
    std::size_t next = 0;
};

/// Where a value stands, and where a new one would.
struct Place {
    std::optional<Token> found;
    /// Behind the last value of the last section of the key.
    std::optional<std::size_t> insertion;
};

Line line_at(std::string_view text, std::size_t start)
{
    const std::size_t feed = text.find('\n', start);
    std::size_t end = std::min(feed, text.size());
    const std::size_t next = feed == std::string_view::npos ? text.size() : feed + 1;
    if (end > start && text[end - 1] == '\r')
        --end;
    return {{start, end}, next};
}

Place locate(std::string_view text, const SettingName& name)
{
    Place place;
    // No key: the values belong to every key.
    std::optional<std::string_view> key;
    std::size_t start = text.starts_with(byte_order_mark) ? byte_order_mark.size() : 0;
    while (start < text.size()) {
        const Line line = line_at(text, start);
        const Span words = trimmed(text, line.text);
        start = line.next;
        if (words.start == words.end || comment_sign(text[words.start]))
            continue;
        const bool opens = text[words.start] == '[';
        if (opens)
            key = key_on(part(text, words));
        const bool ours = key && same_ascii_letters(*key, name.key);
        if (ours)
            place.insertion = line.next;
        if (opens || (key && !ours))
            continue;
        if (auto found = value_on(text, words, name.name))
            place.found = std::move(found);
    }
    return place;
}

std::string replaced(std::string_view text, const Span& span, const std::string& by)
{
    const std::string_view before = text.substr(0, span.start);
    const std::string_view after = text.substr(span.end);
    // A comment may follow at once, on quotes or on an empty value, and digits would take it in.
    const bool close = !after.empty() && comment_sign(after.front());
    return std::string(before) + (before.ends_with('=') ? " " : "") + by + (close ? " " : "") +
           std::string(after);
}

} // namespace

std::optional<SettingName> split_setting_name(std::string_view full)
{
    const std::size_t last = full.rfind('\\');
    if (last == std::string_view::npos || last == 0 || last + 1 == full.size())
        return std::nullopt;
    return SettingName{full.substr(0, last), full.substr(last + 1)};
}

std::optional<RegValue> find_setting(std::string_view text, const SettingName& name)
{
    const Place place = locate(text, name);
    return place.found ? std::optional(place.found->value) : std::nullopt;
}

std::string with_setting(std::string_view text, const SettingName& name, const RegValue& value)
{
    const Place place = locate(text, name);
    if (place.found)
        return replaced(text, place.found->span, written(value));

    const std::string line_end = text.find("\r\n") == std::string_view::npos ? "\n" : "\r\n";
    std::string result(text.empty() ? opening : text);
    std::size_t at = place.insertion.value_or(result.size());
    std::string addition;
    if (at > 0 && result[at - 1] != '\n')
        addition += line_end;
    if (!place.insertion)
        addition += line_end + '[' + std::string(name.key) + ']' + line_end;
    addition += std::string(name.name) + " = " + written(value) + line_end;
    return result.insert(at, addition);
}

} // namespace ostrelum::linux_platform
