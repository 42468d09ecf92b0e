#include "platform/linux/devices/BlockDevices.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

constexpr std::uint64_t sector_bytes = 512;
constexpr std::uint64_t extended_bytes = 2 * sector_bytes;
/// No machine's devices lie on each other in more ways; links in a recorded one can make of a few
/// folders any number.
constexpr std::size_t most_links = 100'000;

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

/// The disk of a partition; the device itself if it is none.
std::string disk_of(const Sysroot& root, const std::string& name)
{
    if (!root.exists(in_class(name) + "/partition"))
        return name;
    const std::string path = device_path(root, name);
    const auto end = path.rfind('/');
    return end == std::string::npos ? name : last_part(std::string_view(path).substr(0, end));
}

/// What a device lies on at once; nothing for a whole disk.
std::vector<std::string> below(const Sysroot& root, const std::string& name)
{
    const std::string disk = disk_of(root, name);
    return disk == name ? root.list(in_class(name) + "/slaves") : std::vector{disk};
}

} // namespace

std::optional<std::string> device_number(const Sysroot& root, const std::string& name)
{
    if (name.empty())
        return std::nullopt;
    return root.text(in_class(name) + "/dev");
}

std::string MountedDevices::device_of(const Mount& mount)
{
    const bool numbered = !mount.device.empty() && !mount.device.starts_with("0:");
    std::string name = numbered ? of_number(mount.device) : "";
    return name.empty() ? of_source(mount.source) : name;
}

std::string MountedDevices::of_number(const std::string& number)
{
    const auto [answer, is_new] = answered_.try_emplace(number);
    if (is_new)
        answer->second = found_by_number(number);
    return answer->second;
}

std::string MountedDevices::found_by_number(const std::string& number)
{
    if (const auto path = root_.link("/sys/dev/block/" + number))
        return last_part(*path);
    if (!by_number_) {
        by_number_.emplace();
        for (const std::string& name : root_.list("/sys/class/block"))
            by_number_->try_emplace(device_number(root_, name).value_or(""), name);
    }
    const auto found = by_number_->find(number);
    return found == by_number_->end() ? "" : found->second;
}

/// The device behind a path under /dev; udev's own names there are links.
std::string MountedDevices::of_source(const std::string& source)
{
    if (!source.starts_with("/dev/"))
        return {};
    std::string name = source.starts_with("/dev/mapper/") ? of_mapped(last_part(source)) : "";
    if (!name.empty())
        return name;
    name = last_part(root_.link(source).value_or(source));
    return is_device(root_, name) ? name : std::string();
}

/// The device whose name the device mapper knows, as in /dev/mapper/NAME.
std::string MountedDevices::of_mapped(const std::string& mapped)
{
    if (!by_mapped_name_) {
        by_mapped_name_.emplace();
        for (const std::string& name : block_devices(root_)) {
            const auto known =
                name.starts_with("dm-") ? root_.text(in_list(name) + "/dm/name") : std::nullopt;
            if (known)
                by_mapped_name_->try_emplace(*known, name);
        }
    }
    const auto found = by_mapped_name_->find(mapped);
    return found == by_mapped_name_->end() ? "" : found->second;
}

DeviceStacks::DeviceStacks(const Sysroot& root, const std::vector<std::string>& devices)
{
    std::set<std::string> seen;
    std::vector<std::string> rest;
    const auto add = [&](const std::string& name) {
        if (seen.insert(name).second)
            rest.push_back(name);
    };
    for (const std::string& name : devices) {
        if (is_device(root, name))
            add(name);
    }
    std::size_t links = 0;
    while (!rest.empty() && links < most_links) {
        const std::string name = std::move(rest.back());
        rest.pop_back();
        const auto parts = below(root, name);
        if (parts.empty())
            disks_.insert(name);
        for (const std::string& part : parts) {
            above_[part].push_back(name);
            add(part);
        }
        links += parts.size();
    }
}

std::set<std::string> DeviceStacks::lying_on(const std::vector<std::string>& disks) const
{
    std::set<std::string> found(disks.begin(), disks.end());
    std::vector<std::string> rest(found.begin(), found.end());
    while (!rest.empty()) {
        const auto upper = above_.find(rest.back());
        rest.pop_back();
        for (const std::string& name :
             upper == above_.end() ? std::vector<std::string>() : upper->second) {
            if (found.insert(name).second)
                rest.push_back(name);
        }
    }
    return found;
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
