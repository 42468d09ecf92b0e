#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// Whether a text stands where a maker should have written something: "To Be Filled By O.E.M.",
/// "Default string", and their like. Blanks round it are of no account.
bool is_placeholder(std::string_view text);

/// The text, valid in UTF-8 and trimmed; nothing if that leaves none or a placeholder.
std::optional<std::string> meaningful_text(std::string_view raw);

/// The same for a serial number, where zeros or a row of one digit are a placeholder, too. A
/// version may well be 2222.
std::optional<std::string> meaningful_serial(std::string_view raw);

} // namespace ostrelum::linux_platform
