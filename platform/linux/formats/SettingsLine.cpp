#include "platform/linux/formats/SettingsLine.h"

#include "platform/linux/text/Hex.h"
#include "sources/Ascii.h"
#include "sources/Utf8.h"

#include <algorithm>
#include <charconv>

namespace ostrelum::linux_platform {

namespace {

constexpr std::string_view blanks = " \t";

bool printable(std::string_view line)
{
    const auto control = [](char c) {
        return (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7F;
    };
    return std::none_of(line.begin(), line.end(), control) && valid_utf8(line);
}

/// The number that the whole of `text` is.
std::optional<std::uint32_t> whole_number(std::string_view text)
{
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    }
    std::uint32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number, base);
    if (error != std::errc() || rest != end)
        return std::nullopt;
    return number;
}

/// Reads one character or escape of quoted text and moves behind it. An escape that means nothing
/// stands for itself, as in a path that somebody typed.
char unescaped(std::string_view text, std::size_t& at)
{
    constexpr std::string_view letters = "\\\"'nrt";
    constexpr std::string_view meanings = "\\\"'\n\r\t";
    const char c = text[at++];
    if (c != '\\' || at == text.size())
        return c;
    if (const std::size_t i = letters.find(text[at]); i != std::string_view::npos) {
        ++at;
        return meanings[i];
    }
    if (text[at] == 'x' && text.size() - at > 2) {
        unsigned code = 0;
        const char* const digits = text.data() + at + 1;
        if (std::from_chars(digits, digits + 2, code, 16).ptr == digits + 2 && code < 0x80) {
            at += 3;
            return static_cast<char>(code);
        }
    }
    return c;
}

/// A text in quotes that ends on this line, with nothing but a comment behind it.
std::optional<Token> quoted_value(std::string_view text, Span span)
{
    const std::string_view line = text.substr(0, span.end);
    const char quote = line[span.start];
    std::string value;
    std::size_t at = span.start + 1;
    while (at < line.size() && line[at] != quote)
        value += unescaped(line, at);
    if (at == line.size())
        return std::nullopt;
    const Span rest = trimmed(line, {at + 1, span.end});
    if (rest.start < rest.end && !comment_sign(line[rest.start]))
        return std::nullopt;
    return Token{{span.start, at + 1}, value};
}

/// A number or a bare text, up to the comment. Only a blank before its sign begins a comment.
Token bare_value(std::string_view text, Span span)
{
    std::size_t end = span.start;
    while (end < span.end && !(comment_sign(text[end]) &&
                               (end == span.start || blanks.find(text[end - 1]) != blanks.npos)))
        ++end;
    const Span value = trimmed(text, {span.start, end});
    const std::string_view word = part(text, {span.start, std::max(span.start, value.end)});
    const Span used = {span.start, span.start + word.size()};
    if (const auto number = whole_number(word))
        return {used, *number};
    return {used, std::string(word)};
}

std::string escaped(char c)
{
    const auto code = static_cast<unsigned char>(c);
    switch (c) {
    case '\\': return "\\\\";
    case '"': return "\\\"";
    case '\n': return "\\n";
    case '\r': return "\\r";
    case '\t': return "\\t";
    default:
        if (code >= 0x20 && code != 0x7F)
            return {c};
        return "\\x" + upper_hex(code, 2);
    }
}

} // namespace

std::string_view part(std::string_view text, Span span)
{
    return text.substr(span.start, span.end - span.start);
}

Span trimmed(std::string_view text, Span span)
{
    while (span.start < span.end && blanks.find(text[span.start]) != std::string_view::npos)
        ++span.start;
    while (span.start < span.end && blanks.find(text[span.end - 1]) != std::string_view::npos)
        --span.end;
    return span;
}

bool comment_sign(char c)
{
    return c == '#' || c == ';';
}

std::optional<Token> value_on(std::string_view text, Span line, std::string_view name)
{
    const std::size_t sign = part(text, line).find('=');
    if (sign == std::string_view::npos || !printable(part(text, line)))
        return std::nullopt;
    const Span left = trimmed(text, {line.start, line.start + sign});
    if (!same_ascii_letters(part(text, left), name))
        return std::nullopt;
    const Span right = trimmed(text, {line.start + sign + 1, line.end});
    const bool quoted =
        right.start < right.end && (text[right.start] == '"' || text[right.start] == '\'');
    return quoted ? quoted_value(text, right) : bare_value(text, right);
}

std::optional<std::string_view> key_on(std::string_view line)
{
    if (!printable(line))
        return std::nullopt;
    line.remove_prefix(1);
    line = line.substr(0, line.find(']'));
    std::string_view key = part(line, trimmed(line, {0, line.size()}));
    while (key.ends_with('\\'))
        key.remove_suffix(1);
    return key;
}

std::string written(const RegValue& value)
{
    if (const auto* number = std::get_if<std::uint32_t>(&value))
        return std::to_string(*number);
    std::string text = "\"";
    for (const char c : std::get<std::string>(value))
        text += escaped(c);
    return text + '"';
}

} // namespace ostrelum::linux_platform
