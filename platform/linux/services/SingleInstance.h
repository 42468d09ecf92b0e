#pragma once

#include "platform/linux/files/Descriptor.h"
#include "platform/linux/services/Environment.h"

#include <string>

namespace ostrelum::linux_platform {

/// One running program for each user: a lock that the kernel drops with the process, however that
/// ends. It lies under XDG_RUNTIME_DIR, else in a folder of the user's own under `shared`.
class SingleInstance {
public:
    explicit SingleInstance(const Environment& environment, const std::string& shared = "/tmp");

    /// True if another process holds the lock. From the first call that returns false this object
    /// holds it. Where no lock can be made at all, the program starts: false.
    bool another_runs();

private:
    std::string runtime_folder_;
    std::string own_folder_;
    Descriptor lock_;
};

} // namespace ostrelum::linux_platform
