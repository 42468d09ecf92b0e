#include "platform/linux/devices/VolumeFacts.h"

#include "platform/linux/devices/BlockDevices.h"
#include "platform/linux/devices/UdevDatabase.h"
#include "platform/masking/Pseudonyms.h"

#include <algorithm>
#include <cctype>

namespace ostrelum::linux_platform {
namespace {

bool is_hex(std::string_view text)
{
    return std::ranges::all_of(
        text, [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; });
}

std::string upper(std::string_view hex)
{
    std::string text(hex);
    for (char& c : text)
        c = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
    return text;
}

} // namespace

std::optional<std::string> serial_of_identity(std::string_view identity, std::string_view type)
{
    constexpr std::size_t Digits = 8;
    std::string digits;
    if (identity.size() == 9 && identity[4] == '-')
        digits = std::string(identity.substr(0, 4)) + std::string(identity.substr(5));
    else if (identity.size() == 16 && is_hex(identity))
        digits = identity.substr(type == "NTFS" ? identity.size() - Digits : 0, Digits);
    else if (identity.size() == 36 && identity[8] == '-')
        digits = identity.substr(0, Digits);
    if (digits.empty() || !is_hex(digits))
        return std::nullopt;
    return upper(digits);
}

FileSystemFacts::FileSystemFacts(const Sysroot& root, std::string device)
    : root_(root), device_(std::move(device))
{
}

std::optional<std::string> FileSystemFacts::udev(std::string_view key) const
{
    const auto number = device_number(root_, device_);
    return number ? UdevRecord(root_, "b" + *number).text(key) : std::nullopt;
}

std::optional<std::string> FileSystemFacts::link_name(const std::string& folder) const
{
    if (device_.empty())
        return std::nullopt;
    for (const std::string& name : root_.list(folder)) {
        const std::string target = root_.link(folder + "/" + name).value_or("");
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
    if (!identity || is_pseudonym(*identity))
        return identity;
    return serial_of_identity(*identity, type(mounted_as).value_or(""));
}

std::optional<std::string> FileSystemFacts::type(std::string_view mounted_as) const
{
    std::string type(mounted_as);
    // Drivers in user space bear one type for all file systems.
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
