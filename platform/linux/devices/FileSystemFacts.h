#pragma once

#include "platform/linux/files/MachineView.h"
#include "platform/linux/formats/UdevRecord.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// What is known of a volume besides its mount.
namespace ostrelum::linux_platform {

/// What udev knows of devices: its records, of which the last one asked for is kept, and its links
/// under /dev/disk, each folder of which is read once. It keeps a reference to the root.
class DiskRecords {
public:
    explicit DiskRecords(const Sysroot& root) : root_(root) {}

    const UdevRecord& of(const std::string& device);

    /// The name of the first link in the folder that leads to the device.
    std::optional<std::string> name_of(const std::string& device, const std::string& folder);

private:
    const Sysroot& root_;
    std::string last_device_;
    UdevRecord last_record_{""};
    /// By folder and device.
    std::map<std::string, std::map<std::string, std::string>> names_;
};

/// What udev, or else its links under /dev/disk, say of the file system on a device.
class FileSystemFacts {
public:
    /// `device` is the kernel's name; an empty one has no facts. It keeps references to the machine
    /// and the records.
    FileSystemFacts(const MachineView& machine, DiskRecords& records, std::string device);

    std::optional<std::string> label() const;
    /// The serial number: eight upper-case hexadecimal digits of the file system's identity.
    std::optional<std::string> serial(std::string_view mounted_as) const;
    /// The name under which users know a file system type; `mounted_as` is the kernel's, empty for
    /// a volume that is not mounted.
    std::optional<std::string> type(std::string_view mounted_as) const;

private:
    std::optional<std::string> udev(std::string_view key) const;
    std::optional<std::string> link_name(const std::string& folder) const;

    const MachineView& machine_;
    DiskRecords& records_;
    std::string device_;
};

} // namespace ostrelum::linux_platform
