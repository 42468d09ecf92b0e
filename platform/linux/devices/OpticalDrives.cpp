#include "platform/linux/devices/OpticalDrives.h"

#include "platform/linux/devices/BlockDevices.h"
#include "platform/linux/devices/UdevDatabase.h"

namespace ostrelum::linux_platform {
namespace {

/// What the kernel gives as the size of an empty drive, in bytes: a gigabyte less a sector, or next
/// to nothing (drivers/scsi/sr.c).
constexpr std::uint64_t empty_drive_bytes = 2097151ULL * 512;
constexpr std::uint64_t next_to_nothing = 4ULL * 512;

} // namespace

std::vector<std::string> optical_drives(const Sysroot& root)
{
    std::vector<std::string> drives;
    for (const std::string& name : block_devices(root)) {
        if (name.starts_with("sr"))
            drives.push_back(name);
    }
    return drives;
}

std::optional<std::uint64_t> disc_bytes(const Sysroot& root, const std::string& drive)
{
    const auto bytes = device_bytes(root, drive);
    if (!bytes)
        return std::nullopt;
    const UdevRecord udev = udev_record(root, "b" + device_number(root, drive).value_or(""));
    if (udev.text("ID_CDROM"))
        return udev.text("ID_CDROM_MEDIA") == "1" ? bytes : std::nullopt;
    return *bytes == empty_drive_bytes || *bytes <= next_to_nothing ? std::nullopt : bytes;
}

} // namespace ostrelum::linux_platform
