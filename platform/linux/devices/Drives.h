#pragma once

#include "platform/linux/devices/Volumes.h"
#include "platform/linux/files/Sysroot.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// The drives of the machine, by the kernel's names, and which of them can be taken out.
namespace ostrelum::linux_platform {

/// Whether a block device is a drive: not one that software makes, or that is listed as something
/// else, and no area of another.
bool is_drive(const Sysroot& root, const std::string& name);

/// The table of what is mounted where, as this process sees it; empty if it cannot be read.
std::vector<Mount> mount_table(const Sysroot& root);

/// Which drives can be taken out. What the running system lies on is looked up once, when it is
/// first needed. It keeps a reference to the root.
class RemovableDrives {
public:
    explicit RemovableDrives(const Sysroot& root) : root_(root) {}

    /// Whether a drive is a memory card in a slot of the machine's own. The one that the system
    /// runs from is none: it is a part of the machine.
    bool is_memory_card(const std::string& drive);

    /// Whether a drive or the medium in it can be taken out.
    bool contains(const std::string& drive);

private:
    const Sysroot& root_;
    std::map<std::string, bool> known_;
    std::optional<std::set<std::string>> system_drives_;
};

/// What is on a drive that can be taken out: its largest partition, or the whole drive where it has
/// none.
struct UnmountedVolume {
    std::string device;
    /// Bytes.
    std::uint64_t size = 0;
};

UnmountedVolume unmounted_volume(const Sysroot& root, const std::string& drive);

/// The drives that can be taken out and hold a medium, in natural order.
std::vector<std::string> loaded_drives(const Sysroot& root, RemovableDrives& removable);

} // namespace ostrelum::linux_platform
