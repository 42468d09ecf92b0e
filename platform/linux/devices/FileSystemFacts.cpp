#include "platform/linux/devices/FileSystemFacts.h"

#include "platform/linux/devices/BlockDevices.h"
#include "platform/linux/devices/UdevDatabase.h"

namespace ostrelum::linux_platform {

FileSystemFacts::FileSystemFacts(const MachineView& machine, std::string device)
    : machine_(machine), device_(std::move(device))
{
}

std::optional<std::string> FileSystemFacts::udev(std::string_view key) const
{
    const auto number = device_number(machine_.root, device_);
    return number ? udev_record(machine_.root, "b" + *number).text(key) : std::nullopt;
}

std::optional<std::string> FileSystemFacts::link_name(const std::string& folder) const
{
    if (device_.empty())
        return std::nullopt;
    for (const std::string& name : machine_.root.list(folder)) {
        const std::string target = machine_.root.link(folder + "/" + name).value_or("");
        if (target.substr(target.rfind('/') + 1) == device_)
            return udev_decoded(name);
    }
    return std::nullopt;
}

std::optional<std::string> FileSystemFacts::label() const
{
    const auto label = udev("ID_FS_LABEL_ENC");
    return label ? label : link_name("/dev/disk/by-label");
}

std::optional<std::string> FileSystemFacts::serial(std::string_view mounted_as) const
{
    auto identity = udev("ID_FS_UUID");
    if (!identity)
        identity = link_name("/dev/disk/by-uuid");
    if (!identity)
        return std::nullopt;
    return machine_.identities.volume(*identity, type(mounted_as).value_or(""));
}

std::optional<std::string> FileSystemFacts::type(std::string_view mounted_as) const
{
    std::string type(mounted_as);
    // Drivers in user space have one type for all file systems.
    if (type.empty() || type == "fuseblk")
        type = udev("ID_FS_TYPE").value_or(type);
    if (type == "vfat" || type == "msdos")
        return udev("ID_FS_VERSION").value_or("FAT32");
    if (type == "ntfs" || type == "ntfs3" || type == "fuseblk")
        return "NTFS";
    if (type == "exfat")
        return "exFAT";
    if (type == "iso9660")
        return "CDFS";
    if (type == "udf")
        return "UDF";
    return type.empty() ? std::nullopt : std::optional(type);
}

} // namespace ostrelum::linux_platform
