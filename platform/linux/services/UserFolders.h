#pragma once

#include "platform/linux/services/Environment.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ostrelum::linux_platform {

/// A file of that name in a folder, in any ASCII case of the name; the exact name goes first.
/// Nothing if there is none among the first 20000 entries.
std::optional<std::string> file_in_folder(const std::string& folder, const std::string& name);

/// What a text in the form of user-dirs.dirs names as desktop folder: a line
/// XDG_DESKTOP_DIR="$HOME/..." or ="/...", the last one if there are several.
std::optional<std::string> desktop_named(std::string_view user_dirs, const std::string& home);

/// The user's desktop folder: the one that user-dirs.dirs names, ~/Desktop, else the home folder.
/// The first that exists; nothing if none does.
std::optional<std::string> desktop_folder(const Environment& environment);

/// Where fonts lie, the user's own first.
std::vector<std::string> font_places(const Environment& environment);

/// The folder at or below one of `places` that holds segoeui.ttf in any ASCII case; the nearest one
/// of the first place. Nothing if there is none within 6 levels and 20000 entries of a place.
std::optional<std::string> segoe_folder(const std::vector<std::string>& places);

} // namespace ostrelum::linux_platform
