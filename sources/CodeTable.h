#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

/// Tables of what the numeric codes of the service stand for.
namespace ostrelum::inline sources {

/// A row of a code table. The text is a literal, or the key of one that depends on the language.
template <class Meaning>
struct CodeRow {
    int code;
    Meaning text;
};

/// Whether each code is above the one before it: no code stands twice.
template <class Meaning, std::size_t Count>
constexpr bool rising(const std::array<CodeRow<Meaning>, Count>& rows)
{
    return std::ranges::adjacent_find(rows, std::ranges::greater_equal{},
                                      &CodeRow<Meaning>::code) == rows.end();
}

/// The row of a code that came as text; nullptr where the text is not exactly the digits of a code
/// of the table.
template <class Meaning, std::size_t Count>
const CodeRow<Meaning>* find_code(const std::array<CodeRow<Meaning>, Count>& rows,
                                  std::string_view code)
{
    const auto row = std::ranges::find_if(
        rows, [&](const CodeRow<Meaning>& each) { return std::to_string(each.code) == code; });
    return row == rows.end() ? nullptr : &*row;
}

} // namespace ostrelum::inline sources
