#pragma once

#include "platform/linux/files/Descriptor.h"
#include "platform/linux/services/Environment.h"

#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// One running program for each user and display: a lock that the kernel drops with the process,
/// however that ends. It lies in a folder of the user's own under `shared`, and not under
/// XDG_RUNTIME_DIR, which one start has and another has not. A desktop may offer two displays,
/// Wayland's and X11's: the program locks all that it could show up on.
class SingleInstance {
public:
    explicit SingleInstance(const Environment& environment, const std::string& shared = "/tmp");

    /// True if another process holds one of the locks. From the first call that returns false this
    /// object holds them. Where no lock can be made at all, the program starts: false.
    bool another_runs();

private:
    std::string folder_;
    /// File names of the locks, in one order for all processes.
    std::vector<std::string> names_;
    std::vector<Descriptor> locks_;
};

} // namespace ostrelum::linux_platform
