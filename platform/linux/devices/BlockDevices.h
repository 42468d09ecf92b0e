#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/linux/formats/Mounts.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Block devices by the kernel's names, such as "sda1" or "dm-0". A name that is empty or not there
/// gives nothing.
namespace ostrelum::linux_platform {

/// The number "major:minor" of a device.
std::optional<std::string> device_number(const Sysroot& root, const std::string& name);

/// The device that a file system lies on: by its number, or by its source where the number is one
/// of no device (btrfs) or not known.
std::string device_of_mount(const Sysroot& root, const Mount& mount);

/// The whole disks under a device: a partition's disk, the disks of the parts of a logical or
/// encrypted volume. Sorted, each once.
std::vector<std::string> whole_disks(const Sysroot& root, const std::string& name);

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
