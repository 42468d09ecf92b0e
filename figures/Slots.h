#pragma once

#include "figures/Shared.h"

#include <array>
#include <string>

/// Filling the slots of a value buffer.
namespace ostrelum::inline figures {

/// Empties the slots `from` to `to` of a value buffer.
void clear(std::array<std::string, 12>& values, int from, int to);

/// A text without the blanks at its ends.
std::string trimmed(const Value& value);

} // namespace ostrelum::inline figures
