#pragma once

#include <optional>
#include <string>
#include <vector>

namespace ostrelum::console {

/// What the console's command line asks for.
struct Options {
    /// Folder of a recorded machine; nothing for this one.
    std::optional<std::string> sysroot;
    /// "English", "Spanish", "Dutch".
    std::string language = "English";
    /// Account whose page is shown; nothing for the user's own.
    std::optional<std::string> user;
    /// Hides what identifies a person, a machine or a part of it.
    bool mask = false;
    /// The command and its arguments, at least one word.
    std::vector<std::string> command;
};

/// The text that tells how the console is used.
extern const char* const usage;

/// Reads the options that stand before the command; nothing if they are wrong.
std::optional<Options> read_options(const std::vector<std::string>& arguments);

} // namespace ostrelum::console
