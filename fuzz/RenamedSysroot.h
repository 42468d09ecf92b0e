#pragma once

#include "tests/platform/linux/TemporaryFolder.h"

#include <string>
#include <string_view>
#include <vector>

namespace ostrelum {

using namespace linux_platform;

/// A copy of a recorded machine in which whatever has a name can be given another one: devices in
/// sysfs, in udev's and in the hardware database, the processor, the system, a user, a volume.
class RenamedSysroot {
public:
    /// `recorded` is the machine's folder.
    explicit RenamedSysroot(const std::string& recorded);

    std::string root() const { return folder_ / "machine"; }

    /// Gives everything that name, whatever bytes it has.
    void rename_all(const std::string& name) const;

private:
    struct File {
        std::string path;
        std::string content;
    };

    TemporaryFolder folder_;
    std::vector<File> files_;
};

} // namespace ostrelum
