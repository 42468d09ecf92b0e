#include "platform/wql/WqlLexer.h"

#include "platform/system/Failure.h"
#include "sources/Ascii.h"

#include <algorithm>
#include <charconv>

namespace ostrelum::inline wql {
namespace {

/// Longer ones first.
constexpr std::string_view symbols[] = {"<=", ">=", "<>", "!=", "=", "<", ">", "(", ")", ",", "*"};

constexpr std::string_view space = " \t\r\n";

constexpr bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr bool is_name(char c)
{
    return is_digit(c) || c == '_' || (lower_ascii(c) >= 'a' && lower_ascii(c) <= 'z');
}

bool starts_number(std::string_view text)
{
    if (text.starts_with('-') || text.starts_with('+'))
        text.remove_prefix(1);
    return !text.empty() && is_digit(text.front());
}

[[noreturn]] void refuse(std::string_view reason, std::string_view text)
{
    // Enough to find the place.
    constexpr std::size_t shown = 40;
    throw Failure("the query is no WQL: " + std::string(reason) +
                  std::string(text.substr(0, shown)));
}

} // namespace

WqlLexer::WqlLexer(std::string_view text) : rest_(text), next_(read()) {}

WqlToken WqlLexer::take()
{
    WqlToken taken = std::move(next_);
    next_ = read();
    return taken;
}

bool WqlLexer::take_keyword(std::string_view keyword)
{
    const bool is_it =
        next_.kind == WqlToken::Kind::Name && same_ascii_letters(next_.text, keyword);
    if (is_it)
        next_ = read();
    return is_it;
}

bool WqlLexer::take_symbol(std::string_view symbol)
{
    const bool is_it = next_.kind == WqlToken::Kind::Symbol && next_.text == symbol;
    if (is_it)
        next_ = read();
    return is_it;
}

WqlToken WqlLexer::read()
{
    rest_.remove_prefix(std::min(rest_.find_first_not_of(space), rest_.size()));
    if (rest_.empty())
        return {};
    if (rest_.front() == '\'' || rest_.front() == '"')
        return read_text();
    if (starts_number(rest_))
        return read_number();
    for (const std::string_view symbol : symbols) {
        if (rest_.starts_with(symbol))
            return {WqlToken::Kind::Symbol, cut(symbol.size()), {}};
    }
    const auto end = std::ranges::find_if_not(rest_, is_name);
    if (end == rest_.begin())
        refuse("unexpected character at ", rest_);
    return {WqlToken::Kind::Name, cut(static_cast<std::size_t>(end - rest_.begin())), {}};
}

/// A backslash gives the next character its plain meaning.
WqlToken WqlLexer::read_text()
{
    std::string value;
    for (std::size_t at = 1; at < rest_.size(); ++at) {
        if (rest_[at] == rest_.front())
            return {WqlToken::Kind::Literal, cut(at + 1), std::move(value)};
        if (rest_[at] == '\\' && at + 1 < rest_.size())
            ++at;
        value += rest_[at];
    }
    refuse("no closing quote for ", rest_);
}

WqlToken WqlLexer::read_number()
{
    const char* const start = rest_.data() + (rest_.front() == '+' ? 1 : 0);
    const char* const limit = rest_.data() + rest_.size();
    double real = 0;
    const auto read = std::from_chars(start, limit, real);
    if (read.ec != std::errc() || (read.ptr != limit && is_name(*read.ptr)))
        refuse("no number: ", rest_);
    std::int64_t whole = 0;
    const auto read_whole = std::from_chars(start, read.ptr, whole);
    const bool is_whole = read_whole.ec == std::errc() && read_whole.ptr == read.ptr;
    const auto length = static_cast<std::size_t>(read.ptr - rest_.data());
    return {WqlToken::Kind::Literal, cut(length), is_whole ? Value(whole) : Value(real)};
}

std::string_view WqlLexer::cut(std::size_t length)
{
    const std::string_view text = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return text;
}

void refuse_token(const WqlToken& token)
{
    if (token.kind == WqlToken::Kind::End)
        refuse("it ends too early", "");
    refuse("unexpected ", token.text);
}

} // namespace ostrelum::inline wql
