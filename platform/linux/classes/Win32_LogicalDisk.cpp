#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/BlockDevices.h"
#include "platform/linux/devices/FileSystemFacts.h"
#include "platform/linux/devices/OpticalDrives.h"
#include "platform/linux/devices/Volumes.h"

#include <algorithm>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

constexpr int removable_disk = 2;
constexpr int fixed_disk = 3;
constexpr int network_disk = 4;
constexpr int optical_disc = 5;
constexpr int memory_disk = 6;

/// A mounted volume, or an optical drive whatever is in it.
struct Disk {
    const MachineView& machine;
    /// Without a mount point: a drive that is not mounted.
    Volume volume;
    /// The kernel's name of the device; empty for none.
    std::string device;
    /// The device that the system itself lies on.
    std::string system_device;

    bool mounted() const { return !volume.mount.target.empty(); }
    FileSystemFacts facts() const { return {machine, device}; }
    std::optional<VolumeSpace> space() const
    {
        if (!mounted() || volume.network || volume.behind_network)
            return std::nullopt;
        return machine.system_calls->space(volume.mount.target);
    }
};

Value caption(const Disk& disk)
{
    return disk.mounted() ? disk.volume.mount.target : "/dev/" + disk.device;
}

/// A memory card can be taken out, unless the system runs from it; other disks say it themselves.
bool is_removable(const Disk& disk, const std::string& whole)
{
    const Sysroot& root = disk.machine.root;
    if (root.number("/sys/block/" + whole + "/removable") == 1)
        return true;
    if (root.text("/sys/block/" + whole + "/device/type") != "SD")
        return false;
    const auto system = whole_disks(root, disk.system_device);
    return std::ranges::find(system, whole) == system.end();
}

Value drive_type(const Disk& disk)
{
    if (disk.volume.network)
        return network_disk;
    if (disk.device.starts_with("sr"))
        return optical_disc;
    if (disk.device.starts_with("zram") || disk.device.starts_with("ram"))
        return memory_disk;
    const auto disks = whole_disks(disk.machine.root, disk.device);
    const bool removable = std::ranges::any_of(
        disks, [&](const std::string& whole) { return is_removable(disk, whole); });
    return removable ? removable_disk : fixed_disk;
}

Value volume_name(const Disk& disk)
{
    if (disk.volume.network)
        return {};
    return disk.facts().label().value_or("");
}

Value file_system(const Disk& disk)
{
    return value_of(disk.facts().type(disk.volume.mount.type));
}

Value serial(const Disk& disk)
{
    return value_of(disk.facts().serial(disk.volume.mount.type));
}

/// 64-bit numbers are text; nothing for a product beyond 64 bits.
Value bytes(std::uint64_t blocks, std::uint64_t block_size)
{
    std::uint64_t product = 0;
    return __builtin_mul_overflow(blocks, block_size, &product) ? Value()
                                                                : Value(std::to_string(product));
}

Value size(const Disk& disk)
{
    if (const auto space = disk.space())
        return bytes(space->blocks, space->block_size);
    if (disk.mounted())
        return {};
    const auto disc = disc_bytes(disk.machine.root, disk.device);
    return disc ? Value(std::to_string(*disc)) : Value();
}

Value free_space(const Disk& disk)
{
    const auto space = disk.space();
    return space ? bytes(space->available, space->block_size) : Value();
}

constexpr PropertyRow<Disk> rows[] = {
    {"Caption", caption},        {"DriveType", drive_type},
    {"FileSystem", file_system}, {"FreeSpace", free_space},
    {"Name", caption},           {"Size", size},
    {"VolumeName", volume_name}, {"VolumeSerialNumber", serial},
};

std::vector<Volume> mounted_volumes(const Sysroot& root)
{
    auto table = root.read("/proc/self/mountinfo");
    if (!table)
        table = root.read("/proc/self/mounts");
    return volumes_of(parse_mounts(table.value_or("")));
}

/// Mounted volumes by mount point, then the optical drives, so that these come in the same order as
/// the drives' own class has them.
std::vector<Disk> disks(const MachineView& machine)
{
    std::vector<Disk> fixed;
    std::vector<Disk> discs;
    std::string system_device;
    for (const std::string& drive : optical_drives(machine.root))
        discs.push_back({machine, Volume(), drive, std::string()});
    for (Volume& volume : mounted_volumes(machine.root)) {
        const std::string device =
            volume.network ? "" : device_of_mount(machine.root, volume.mount);
        if (volume.mount.target == "/")
            system_device = device;
        const auto drive = std::ranges::find(discs, device, &Disk::device);
        if (drive != discs.end())
            drive->volume = std::move(volume);
        else
            fixed.push_back({machine, std::move(volume), device, system_device});
    }
    std::ranges::for_each(discs, [&](Disk& disc) { fixed.push_back(std::move(disc)); });
    return fixed;
}

} // namespace

constinit const LinuxClass Win32_LogicalDisk = linux_class<rows, disks>("Win32_LogicalDisk");

} // namespace ostrelum::linux_platform
