#include "platform/linux/devices/FileSystemFacts.h"

#include "platform/linux/devices/BlockDevices.h"
#include "platform/linux/devices/UdevDatabase.h"

namespace ostrelum::linux_platform {

const UdevRecord& DiskRecords::of(const std::string& device)
{
    if (device != last_device_) {
        const auto number = device_number(root_, device);
        last_record_ = number ? udev_record(root_, "b" + *number) : UdevRecord("");
        last_device_ = device;
    }
    return last_record_;
}

std::optional<std::string> DiskRecords::name_of(const std::string& device,
                                                const std::string& folder)
{
    const auto [known, is_new] = names_.try_emplace(folder);
    for (const std::string& name : is_new ? root_.list(folder) : std::vector<std::string>()) {
        const std::string target = root_.link(folder + "/" + name).value_or("");
        known->second.try_emplace(target.substr(target.rfind('/') + 1), name);
    }
    const auto name = known->second.find(device);
    return name == known->second.end() ? std::nullopt : std::optional(name->second);
}

FileSystemFacts::FileSystemFacts(const MachineView& machine, DiskRecords& records,
                                 std::string device)
    : machine_(machine), records_(records), device_(std::move(device))
{
}

std::optional<std::string> FileSystemFacts::udev(std::string_view key) const
{
    return records_.of(device_).text(key);
}

std::optional<std::string> FileSystemFacts::link_name(const std::string& folder) const
{
    const auto name = device_.empty() ? std::nullopt : records_.name_of(device_, folder);
    return name ? std::optional(udev_decoded(*name)) : std::nullopt;
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
