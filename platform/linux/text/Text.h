#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reading the texts of the kernel, udev and configuration files.
namespace ostrelum::linux_platform {

/// Without blanks, tabs and line ends at both ends.
std::string_view trimmed_space(std::string_view text);

/// The lines without their ends; a last one that is empty is none. They point into the text.
std::vector<std::string_view> lines_of(std::string_view text);

/// The words between blanks and tabs. They point into the text.
std::vector<std::string_view> words_of(std::string_view text);

/// What stands behind the separator in the first line that begins with `label` and then the
/// separator, blanks between them allowed; trimmed. Nothing if there is no such line.
std::optional<std::string_view> value_behind(std::string_view text, std::string_view label,
                                             char separator);

/// The number that the whole text is, without sign; nothing for other text and above 64 bits.
std::optional<std::uint64_t> whole_number(std::string_view text, int base = 10);

/// The sum of two numbers; nothing above 64 bits.
std::optional<std::uint64_t> sum_of(std::uint64_t a, std::uint64_t b);

/// The text valid in UTF-8, its control characters turned into blanks, and trimmed; nothing if that
/// leaves none.
std::optional<std::string> text_or_none(std::string_view raw);

} // namespace ostrelum::linux_platform
