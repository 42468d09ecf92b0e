#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// Whether a text stands where a maker should have written something: "To Be Filled By O.E.M.",
/// "Default string", zeros in place of a serial number, and their like. Blanks round it are of no
/// account.
bool is_placeholder(std::string_view text);

/// The text, valid in UTF-8 and trimmed; nothing if that leaves none or a placeholder.
std::optional<std::string> meaningful_text(std::string_view raw);

} // namespace ostrelum::linux_platform
