#pragma once

#include "platform/system/Shell.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// The lines of the settings file: "[key]" and "name = value".
namespace ostrelum::linux_platform {

/// A part of the whole text, `end` being one past it.
struct Span {
    std::size_t start = 0;
    std::size_t end = 0;
};

/// A value, and where in the text it is written.
struct Token {
    Span span;
    RegValue value;
};

std::string_view part(std::string_view text, Span span);

/// The span without the blanks and tabs at its ends.
Span trimmed(std::string_view text, Span span);

/// The sign that begins a comment.
bool comment_sign(char c);

/// The value on the line "name = value" that `line` spans, if it is one of that name.
std::optional<Token> value_on(std::string_view text, Span line, std::string_view name);

/// The key on a line that begins with "["; nothing if it cannot be read. A missing bracket at the
/// end is forgiven.
std::optional<std::string_view> key_on(std::string_view line);

/// The value as a line bears it: digits, or a text in quotes.
std::string written(const RegValue& value);

} // namespace ostrelum::linux_platform
