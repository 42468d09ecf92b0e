#pragma once

#include "platform/system/Shell.h"

#include <optional>
#include <string>
#include <string_view>

/// The text of the settings file. One value a line, under the key that holds it:
///
///     # a comment
///     [HKEY_CURRENT_USER\Software\...]
///     Language = "English"
///     ColorValue = 16750080   # a comment
///
/// Digits (decimal, or hexadecimal after 0x) that fit 32 bits are a number, all else is text.
/// Quotes round a text, single or double, may be left out; inside them a backslash begins an
/// escape. Names match without regard to ASCII case. The last of several equal names counts. Values
/// above the first key belong to every key, so that a file of nothing but "Language = Dutch" works,
/// and a damaged line of a key loses none of its values. A line that cannot be read is no value.
namespace ostrelum::linux_platform {

/// A value's place: its key, without a backslash at the end, and its name.
struct SettingName {
    std::string_view key;
    std::string_view name;
};

/// Splits a full name at its last backslash; nothing if either half would be empty. The result
/// points into `full`.
std::optional<SettingName> split_setting_name(std::string_view full);

std::optional<RegValue> find_setting(std::string_view text, const SettingName& name);

/// The text with that value changed or added, and every other byte as it was. Whoever writes checks
/// with find_setting that the value can be read back: a line cannot hold every name.
std::string with_setting(std::string_view text, const SettingName& name, const RegValue& value);

} // namespace ostrelum::linux_platform
