#pragma once

#include "platform/linux/files/MachineView.h"

#include <optional>
#include <string>
#include <string_view>

/// What is known of a volume besides its mount.
namespace ostrelum::linux_platform {

/// What udev, or else its links under /dev/disk, say of the file system on a device.
class FileSystemFacts {
public:
    /// `device` is the kernel's name; an empty one has no facts.
    FileSystemFacts(const MachineView& machine, std::string device);

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
    std::string device_;
};

} // namespace ostrelum::linux_platform
