#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Reading the files by which a system is configured.
namespace ostrelum::linux_platform {

/// The value that a file of shell assignments (os-release(5), locale.conf(5), /etc/default) gives a
/// variable last, its quotes taken off. Nothing if it gives none or an empty one.
std::optional<std::string> assigned(std::string_view text, std::string_view variable);

/// The value of a key in a section of a file with "[section]" lines and "key = value", both in any
/// case of their letters. Lines that begin with "#" or ";" are comments.
std::optional<std::string> value_in_section(std::string_view text, std::string_view section,
                                            std::string_view key);

} // namespace ostrelum::linux_platform
