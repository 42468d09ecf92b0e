#pragma once

#include <optional>
#include <string>

namespace ostrelum::window {

/// The machine that the window shows.
struct MachineSource {
    /// "/" or the folder of a recorded machine.
    std::string root = "/";
    /// Account whose page is shown; nothing for the user's own.
    std::optional<std::string> user;
};

/// Shows the window on Qt and Linux until it is closed; the process's exit code. A second run of
/// the same user ends at once with 0. A root that is no folder shows "Unknown" everywhere.
int run_window(int& argc, char** argv, const MachineSource& source);

} // namespace ostrelum::window
