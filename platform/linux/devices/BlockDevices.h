#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/linux/formats/Mounts.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// Block devices by the kernel's names, such as "sda1" or "dm-0". A name that is empty or not there
/// gives nothing.
namespace ostrelum::linux_platform {

/// The number "major:minor" of a device.
std::optional<std::string> device_number(const Sysroot& root, const std::string& name);

/// Finds the devices of mounts. What takes a walk over all devices is done once, when a mount first
/// needs it. It keeps a reference to the root.
class MountedDevices {
public:
    explicit MountedDevices(const Sysroot& root) : root_(root) {}

    /// The device that a file system lies on: by its number, or by its source where the number is
    /// one of no device (btrfs) or not known. Empty for none.
    std::string device_of(const Mount& mount);

private:
    using Names = std::map<std::string, std::string>;
    std::string of_number(const std::string& number);
    std::string found_by_number(const std::string& number);
    std::string of_source(const std::string& source);
    std::string of_mapped(const std::string& mapped);

    const Sysroot& root_;
    /// Those that were asked for.
    Names answered_;
    std::optional<Names> by_number_;
    std::optional<Names> by_mapped_name_;
};

/// What devices lie on: a partition on its disk, a logical or encrypted volume on the disks of its
/// parts. All are looked at together and each once, also where a recorded machine has devices that
/// lie on each other.
class DeviceStacks {
public:
    DeviceStacks(const Sysroot& root, const std::vector<std::string>& devices);

    /// The whole disks under the devices.
    const std::set<std::string>& disks() const { return disks_; }

    /// The devices that lie on one of the disks, themselves included.
    std::set<std::string> lying_on(const std::vector<std::string>& disks) const;

private:
    std::set<std::string> disks_;
    /// By device, what lies on it at once.
    std::map<std::string, std::vector<std::string>> above_;
};

/// The place of a device in the tree of devices, such as "../../devices/pci0000:00/...".
std::string device_path(const Sysroot& root, const std::string& name);

/// The names under /sys/block, in natural order.
std::vector<std::string> block_devices(const Sysroot& root);

struct Partition {
    std::string name;
    /// Bytes.
    std::uint64_t size = 0;
};

/// The partitions of a disk. An extended one, which only contains others, has a size of two sectors
/// at most and is not among them.
std::vector<Partition> partitions_of(const Sysroot& root, const std::string& disk);

/// Size of a whole device in bytes; nothing for one of no size.
std::optional<std::uint64_t> device_bytes(const Sysroot& root, const std::string& name);

} // namespace ostrelum::linux_platform
