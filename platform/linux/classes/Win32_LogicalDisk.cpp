#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/BlockDevices.h"
#include "platform/linux/devices/Drives.h"
#include "platform/linux/devices/FileSystemFacts.h"
#include "platform/linux/devices/OpticalDrives.h"
#include "platform/linux/devices/Volumes.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

constexpr int removable_disk = 2;
constexpr int fixed_disk = 3;
constexpr int network_disk = 4;
constexpr int optical_disc = 5;
constexpr int memory_disk = 6;

/// What is looked up once for all disks of a query, when it is first needed.
struct Lookups {
    explicit Lookups(const MachineView& machine)
        : root(machine.root), mounts(mount_table(root)), finder(root), records(root),
          removable(root)
    {
    }

    /// What is mounted lies on these.
    const DeviceStacks& stacks()
    {
        if (!known_stacks) {
            std::vector<std::string> devices;
            for (const Mount& mount : mounts)
                devices.push_back(finder.device_of(mount));
            known_stacks.emplace(root, devices);
        }
        return *known_stacks;
    }

    /// Whether a mounted device lies on a drive that can be taken out.
    bool can_be_taken_out(const std::string& device)
    {
        if (!taken_out) {
            std::vector<std::string> drives(stacks().disks().begin(), stacks().disks().end());
            std::erase_if(drives, [&](const auto& drive) { return !removable.contains(drive); });
            taken_out = stacks().lying_on(drives);
        }
        return taken_out->contains(device);
    }

    const Sysroot& root;
    std::vector<Mount> mounts;
    MountedDevices finder;
    DiskRecords records;
    RemovableDrives removable;
    std::optional<DeviceStacks> known_stacks = {};
    std::optional<std::set<std::string>> taken_out = {};
};

/// A mounted volume, an optical drive whatever is in it, or what is on another drive that can be
/// taken out.
struct Disk {
    const MachineView& machine;
    std::shared_ptr<Lookups> lookups;
    /// Without a mount point: one that is not mounted.
    Volume volume;
    /// The kernel's name of the device; empty for none.
    std::string device;
    /// Size in bytes of what is not mounted; nothing for an empty drive.
    std::optional<std::uint64_t> unmounted_size;

    bool mounted() const { return !volume.mount.target.empty(); }
    FileSystemFacts facts() const { return {machine, lookups->records, device}; }
    std::optional<VolumeSpace> space() const
    {
        if (!mounted() || volume.network || volume.behind_network)
            return std::nullopt;
        if (!known_space)
            known_space = machine.system_calls->space(volume.mount.target);
        return *known_space;
    }

    /// Asked for once: size and free space speak of one moment.
    mutable std::optional<std::optional<VolumeSpace>> known_space = std::nullopt;
};

Value caption(const Disk& disk)
{
    return disk.mounted() ? disk.volume.mount.target : "/dev/" + disk.device;
}

Value drive_type(const Disk& disk)
{
    if (disk.volume.network)
        return network_disk;
    if (disk.device.starts_with("sr"))
        return optical_disc;
    if (disk.device.starts_with("zram") || disk.device.starts_with("ram"))
        return memory_disk;
    const bool removable = !disk.mounted() || disk.lookups->can_be_taken_out(disk.device);
    return removable ? removable_disk : fixed_disk;
}

Value volume_name(const Disk& disk)
{
    if (disk.volume.network)
        return {};
    return disk.facts().label().value_or("");
}

/// What nobody can tell of a volume that is there is an empty text: lists join the texts of several
/// volumes, and each has its place in them.
Value told(const Disk& disk, const std::optional<std::string>& text)
{
    const bool is_there = disk.mounted() ? !disk.volume.network : disk.unmounted_size.has_value();
    return is_there ? Value(text.value_or("")) : value_of(text);
}

Value file_system(const Disk& disk)
{
    return told(disk, disk.facts().type(disk.volume.mount.type));
}

Value serial(const Disk& disk)
{
    return told(disk, disk.facts().serial(disk.volume.mount.type));
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
    const bool is_known = !disk.mounted() && disk.unmounted_size;
    return is_known ? Value(std::to_string(*disk.unmounted_size)) : Value();
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

/// What is plugged in but not mounted has a size and no free space. It comes first, since a page
/// that cannot read a free space shows that of the volume before.
/// None if the table of mounts is empty.
std::vector<Disk> unmounted_disks(const Disk& form)
{
    Lookups& lookups = *form.lookups;
    std::vector<Disk> disks;
    for (const std::string& drive : lookups.mounts.empty()
                                        ? std::vector<std::string>()
                                        : loaded_drives(lookups.root, lookups.removable)) {
        if (lookups.stacks().disks().contains(drive))
            continue;
        auto [device, size] = unmounted_volume(lookups.root, drive);
        disks.push_back({form.machine, form.lookups, Volume(), std::move(device), size});
    }
    return disks;
}

/// By the drives' names, in their order.
std::vector<Disk> optical_disks(const Disk& form)
{
    const Sysroot& root = form.machine.root;
    std::vector<Disk> discs;
    for (const std::string& drive : optical_drives(root))
        discs.push_back({form.machine, form.lookups, Volume(), drive, disc_bytes(root, drive)});
    return discs;
}

/// Drives that are not mounted, mounted volumes by mount point, then the optical drives, so that
/// these come in the same order as the drives' own class has them.
std::vector<Disk> disks(const MachineView& machine)
{
    const Disk form{machine, std::make_shared<Lookups>(machine), {}, {}, {}};
    std::vector<Disk> all = unmounted_disks(form);
    std::vector<Disk> discs = optical_disks(form);
    std::map<std::string, Disk*> drives;
    for (Disk& disc : discs)
        drives.try_emplace(disc.device, &disc);
    for (Volume& volume : volumes_of(form.lookups->mounts)) {
        const std::string device =
            volume.network ? "" : form.lookups->finder.device_of(volume.mount);
        const auto drive = drives.find(device);
        if (drive != drives.end())
            drive->second->volume = std::move(volume);
        else
            all.push_back({machine, form.lookups, std::move(volume), device, std::nullopt});
    }
    std::ranges::for_each(discs, [&](Disk& disc) { all.push_back(std::move(disc)); });
    return all;
}

} // namespace

constinit const LinuxClass Win32_LogicalDisk = linux_class<rows, disks>("Win32_LogicalDisk");

} // namespace ostrelum::linux_platform
