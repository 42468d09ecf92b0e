#include "sources/Value.h"

#include "sources/Ascii.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace ostrelum::inline sources {
namespace {

std::string shortest(double real)
{
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), real);
    return {digits.data(), end.ptr};
}

std::optional<double> parse_number(std::string_view text)
{
    text = trim_blanks(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double real = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), real);
    if (end.ec != std::errc{} || end.ptr != text.data() + text.size() || !std::isfinite(real))
        return std::nullopt;
    return real;
}

} // namespace

std::string Value::text() const
{
    if (const auto* truth = std::get_if<bool>(&held_))
        return *truth ? "True" : "False";
    if (const auto* whole = std::get_if<std::int64_t>(&held_))
        return std::to_string(*whole);
    if (const auto* real = std::get_if<double>(&held_))
        return shortest(*real);
    if (const auto* text = std::get_if<std::string>(&held_))
        return *text;
    throw Failure(is_null() ? "null read as text" : "a list read as text");
}

double Value::number() const
{
    if (const auto* truth = std::get_if<bool>(&held_))
        return *truth ? -1 : 0;
    if (const auto* whole = std::get_if<std::int64_t>(&held_))
        return static_cast<double>(*whole);
    if (const auto* real = std::get_if<double>(&held_))
        return *real;
    if (const auto* text = std::get_if<std::string>(&held_)) {
        if (const auto real = parse_number(*text))
            return *real;
        throw Failure("text read as a number");
    }
    throw Failure(is_null() ? "null read as a number" : "a list read as a number");
}

std::int32_t Value::as_int32() const
{
    // The rounding mode is never changed, so nearbyint rounds halves to the even neighbour.
    const double rounded = std::nearbyint(number());
    using Limits = std::numeric_limits<std::int32_t>;
    if (!(rounded >= Limits::min() && rounded <= Limits::max()))
        throw Failure("number does not fit 32 bits");
    return static_cast<std::int32_t>(rounded);
}

bool Value::as_bool() const
{
    if (const auto* text = std::get_if<std::string>(&held_)) {
        if (same_ascii_letters(*text, "true"))
            return true;
        if (same_ascii_letters(*text, "false"))
            return false;
    }
    return number() != 0;
}

} // namespace ostrelum::inline sources
