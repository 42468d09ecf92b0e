#pragma once

#include "platform/linux/devices/Volumes.h"
#include "platform/linux/files/Sysroot.h"

#include <cstdint>
#include <string>
#include <vector>

/// The drives of the machine, by the kernel's names, and which of them can be taken out.
namespace ostrelum::linux_platform {

/// Whether a block device is a drive: not one that software makes, or that is listed as something
/// else, and no area of another.
bool is_drive(const Sysroot& root, const std::string& name);

/// The table of what is mounted where, as this process sees it; empty if it cannot be read.
std::vector<Mount> mount_table(const Sysroot& root);

/// Whether a drive is a memory card in a slot of the machine's own. The one that the system runs
/// from is none: it is a part of the machine.
bool is_memory_card(const Sysroot& root, const std::string& drive);

/// Whether a drive or the medium in it can be taken out.
bool is_removable(const Sysroot& root, const std::string& drive);

/// What is on a drive that can be taken out: its largest partition, or the whole drive where it has
/// none.
struct UnmountedVolume {
    std::string device;
    /// Bytes.
    std::uint64_t size = 0;
};

/// One for each drive that can be taken out, holds a medium and has nothing mounted, in natural
/// order of the drives. None if the table of mounts is empty.
std::vector<UnmountedVolume> unmounted_volumes(const Sysroot& root,
                                               const std::vector<Mount>& mounts);

} // namespace ostrelum::linux_platform
