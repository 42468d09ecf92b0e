#include "platform/linux/devices/BlockDevices.h"

#include <algorithm>
#include <set>

namespace ostrelum::linux_platform {
namespace {

constexpr std::uint64_t sector_bytes = 512;
constexpr std::uint64_t extended_bytes = 2 * sector_bytes;
/// Logical volumes may lie on each other; deeper than this is a circle.
constexpr int deepest_stack = 16;

std::string last_part(std::string_view path)
{
    return std::string(path.substr(path.rfind('/') + 1));
}

std::string in_class(const std::string& name)
{
    return "/sys/class/block/" + name;
}

std::string in_list(const std::string& disk)
{
    return "/sys/block/" + disk;
}

/// The size of a disk or partition that has its files in that folder.
std::optional<std::uint64_t> bytes_of(const Sysroot& root, const std::string& folder)
{
    const auto sectors = root.number(folder + "/size");
    if (!sectors || *sectors == 0 || *sectors > UINT64_MAX / sector_bytes)
        return std::nullopt;
    return *sectors * sector_bytes;
}

bool is_device(const Sysroot& root, const std::string& name)
{
    return !name.empty() && root.exists(in_class(name));
}

/// The device whose name the device mapper knows, as in /dev/mapper/NAME.
std::string mapped_device(const Sysroot& root, const std::string& mapped)
{
    for (const std::string& name : block_devices(root)) {
        if (name.starts_with("dm-") && root.text(in_list(name) + "/dm/name") == mapped)
            return name;
    }
    return {};
}

/// The device behind a path under /dev; udev's own names there are links.
std::string device_of_source(const Sysroot& root, const std::string& source)
{
    if (!source.starts_with("/dev/"))
        return {};
    if (source.starts_with("/dev/mapper/")) {
        std::string name = mapped_device(root, last_part(source));
        if (!name.empty())
            return name;
    }
    const std::string name = last_part(root.link(source).value_or(source));
    return is_device(root, name) ? name : std::string();
}

/// The disk of a partition; the device itself if it is none.
std::string disk_of(const Sysroot& root, const std::string& name)
{
    if (!root.exists(in_class(name) + "/partition"))
        return name;
    const std::string path = device_path(root, name);
    const auto end = path.rfind('/');
    return end == std::string::npos ? name : last_part(std::string_view(path).substr(0, end));
}

void gather_disks(const Sysroot& root, const std::string& name, std::set<std::string>& disks,
                  int depth)
{
    const std::string disk = disk_of(root, name);
    const auto below = root.list(in_class(disk) + "/slaves");
    if (below.empty())
        disks.insert(disk);
    if (depth == deepest_stack)
        return;
    for (const std::string& part : below)
        gather_disks(root, part, disks, depth + 1);
}

} // namespace

std::optional<std::string> device_number(const Sysroot& root, const std::string& name)
{
    if (name.empty())
        return std::nullopt;
    return root.text(in_class(name) + "/dev");
}

std::string device_of_mount(const Sysroot& root, const Mount& mount)
{
    if (!mount.device.empty() && !mount.device.starts_with("0:")) {
        if (const auto path = root.link("/sys/dev/block/" + mount.device))
            return last_part(*path);
        for (const std::string& name : root.list("/sys/class/block")) {
            if (device_number(root, name) == mount.device)
                return name;
        }
    }
    return device_of_source(root, mount.source);
}

std::vector<std::string> whole_disks(const Sysroot& root, const std::string& name)
{
    std::set<std::string> disks;
    if (is_device(root, name))
        gather_disks(root, name, disks, 0);
    return {disks.begin(), disks.end()};
}

std::string device_path(const Sysroot& root, const std::string& name)
{
    if (const auto path = root.link(in_class(name)))
        return *path;
    return root.link(in_list(name)).value_or("");
}

std::vector<std::string> block_devices(const Sysroot& root)
{
    return root.list("/sys/block");
}

std::vector<Partition> partitions_of(const Sysroot& root, const std::string& disk)
{
    std::vector<Partition> partitions;
    for (const std::string& child : root.list(in_list(disk))) {
        const std::string place = in_list(disk) + "/" + child;
        if (!child.starts_with(disk) || !root.exists(place + "/partition"))
            continue;
        const auto size = bytes_of(root, place);
        if (size.value_or(0) > extended_bytes)
            partitions.push_back({child, *size});
    }
    return partitions;
}

std::optional<std::uint64_t> device_bytes(const Sysroot& root, const std::string& name)
{
    return bytes_of(root, in_list(name));
}

} // namespace ostrelum::linux_platform
