#include "platform/linux/devices/Drives.h"

#include "platform/linux/devices/BlockDevices.h"

#include <algorithm>
#include <array>
#include <set>

namespace ostrelum::linux_platform {
namespace {

/// Block devices that are no drives.
constexpr std::array<std::string_view, 11> no_drives{"dm-", "drbd", "fd",  "loop", "md",  "mtd",
                                                     "nbd", "ram",  "rbd", "sr",   "zram"};

/// The drives on which something is mounted.
std::set<std::string> mounted_drives(const Sysroot& root, const std::vector<Mount>& mounts)
{
    std::set<std::string> drives;
    for (const Mount& mount : mounts) {
        const auto below = whole_disks(root, device_of_mount(root, mount));
        drives.insert(below.begin(), below.end());
    }
    return drives;
}

/// The drives that the running system lies on; none where "/" lies on no device.
std::set<std::string> system_drives(const Sysroot& root)
{
    std::vector<Mount> mounts;
    for (const Volume& volume : volumes_of(mount_table(root))) {
        if (volume.mount.target == "/" && !volume.network)
            mounts.push_back(volume.mount);
    }
    return mounted_drives(root, mounts);
}

/// Several ways to a drive of NVMe are gathered into one device, which software makes, and are
/// themselves hidden.
bool is_made_by_software(const std::string& path)
{
    return path.find("/devices/virtual/") != path.npos &&
           path.find("/nvme-subsystem/") == path.npos;
}

} // namespace

bool is_drive(const Sysroot& root, const std::string& name)
{
    for (const std::string_view kind : no_drives) {
        if (name.starts_with(kind))
            return false;
    }
    // The boot areas of a soldered memory card are areas of the drive, not drives.
    if (name.starts_with("mmcblk") &&
        (name.find("boot") != name.npos || name.find("rpmb") != name.npos))
        return false;
    return !is_made_by_software(device_path(root, name)) &&
           root.number("/sys/block/" + name + "/hidden") != 1;
}

std::vector<Mount> mount_table(const Sysroot& root)
{
    auto table = root.read("/proc/self/mountinfo");
    if (!table)
        table = root.read("/proc/self/mounts");
    return parse_mounts(table.value_or(""));
}

/// The kernel's `removable` is 0 for a card's slot: to the kernel, the drive goes with the card.
bool is_memory_card(const Sysroot& root, const std::string& drive)
{
    return root.text("/sys/block/" + drive + "/device/type") == "SD" &&
           !system_drives(root).contains(drive);
}

bool is_removable(const Sysroot& root, const std::string& drive)
{
    return root.number("/sys/block/" + drive + "/removable") == 1 || is_memory_card(root, drive);
}

std::vector<UnmountedVolume> unmounted_volumes(const Sysroot& root,
                                               const std::vector<Mount>& mounts)
{
    std::vector<std::string> drives =
        mounts.empty() ? std::vector<std::string>() : block_devices(root);
    std::erase_if(drives, [&](const std::string& drive) {
        return !device_bytes(root, drive) || !is_removable(root, drive) || !is_drive(root, drive);
    });
    const auto in_use = drives.empty() ? std::set<std::string>() : mounted_drives(root, mounts);
    std::vector<UnmountedVolume> found;
    for (const std::string& drive : drives) {
        if (in_use.contains(drive))
            continue;
        const auto parts = partitions_of(root, drive);
        const auto largest = std::ranges::max_element(parts, {}, &Partition::size);
        found.push_back(largest == parts.end() ? UnmountedVolume{drive, *device_bytes(root, drive)}
                                               : UnmountedVolume{largest->name, largest->size});
    }
    return found;
}

} // namespace ostrelum::linux_platform
