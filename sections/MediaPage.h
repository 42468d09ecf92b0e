#pragma once

#include "figures/Text.h"
#include "frame/MainForm.h"
#include "sources/Value.h"

#include <cstdint>
#include <string>

/// What the pages of removable memory and of discs have in common: each has a face with rows and
/// one with a large notice, and an alert at its foot on both.
namespace ostrelum::inline sections {

/// Colours of the alert's text.
inline constexpr Colour nothing_found = rgb(75, 75, 75);
inline constexpr Colour media_found = rgb(0, 145, 0);

/// Empties the page's rows 1 to 8 and shows a text over them, at a top and with a height in pixels.
void show_notice(Text key, int top, int height);

/// Writes the text at the foot of the page and shows it with its picture.
void show_alert(Colour colour, const std::string& text);

/// Counts one up; at 255 it stays.
void count_up(std::uint8_t& counter);

/// Bytes as whole KB, rounded down. Throws Failure for a null, for other text than a number and for
/// more than 32 bits hold.
std::int32_t whole_kilobytes(const Value& bytes);

} // namespace ostrelum::inline sections
