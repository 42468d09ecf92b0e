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

/// The drives that the running system lies on; none where "/" lies on no device.
std::set<std::string> system_drives(const Sysroot& root)
{
    MountedDevices finder(root);
    std::vector<std::string> devices;
    for (const Volume& volume : volumes_of(mount_table(root))) {
        if (volume.mount.target == "/" && !volume.network)
            devices.push_back(finder.device_of(volume.mount));
    }
    return DeviceStacks(root, devices).disks();
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
bool RemovableDrives::is_memory_card(const std::string& drive)
{
    if (root_.text("/sys/block/" + drive + "/device/type") != "SD")
        return false;
    if (!system_drives_)
        system_drives_ = system_drives(root_);
    return !system_drives_->contains(drive);
}

bool RemovableDrives::contains(const std::string& drive)
{
    const auto [known, is_new] = known_.try_emplace(drive);
    if (is_new)
        known->second =
            root_.number("/sys/block/" + drive + "/removable") == 1 || is_memory_card(drive);
    return known->second;
}

UnmountedVolume unmounted_volume(const Sysroot& root, const std::string& drive)
{
    const auto parts = partitions_of(root, drive);
    const auto largest = std::ranges::max_element(parts, {}, &Partition::size);
    if (largest != parts.end())
        return {largest->name, largest->size};
    return {drive, device_bytes(root, drive).value_or(0)};
}

std::vector<std::string> loaded_drives(const Sysroot& root, RemovableDrives& removable)
{
    std::vector<std::string> drives = block_devices(root);
    std::erase_if(drives, [&](const std::string& drive) {
        return !device_bytes(root, drive) || !removable.contains(drive) || !is_drive(root, drive);
    });
    return drives;
}

} // namespace ostrelum::linux_platform
