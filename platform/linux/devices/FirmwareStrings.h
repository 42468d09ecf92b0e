#pragma once

#include "platform/linux/files/Sysroot.h"

#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// Texts of a machine's firmware about itself and the machine.
enum class FirmwareText {
    BiosVendor,
    BiosVersion,
    /// mm/dd/yyyy or mm/dd/yy.
    BiosDate,
    BoardVendor,
    BoardName,
    SystemVendor,
    SystemName,
    SystemSerial,
};

/// Reads them where the machine has them: the kernel's own files, what udev published, the
/// firmware's table (readable to root alone), and on machines with other firmware the device tree
/// or the mainframe's system information.
class FirmwareStrings {
public:
    /// The root must outlive the object.
    explicit FirmwareStrings(const Sysroot& root) : root_(&root) {}

    /// Nothing if no source has more than a placeholder.
    std::optional<std::string> text(FirmwareText wanted) const;

    /// Whether there is a source, even if the user may not read it or it holds a placeholder.
    bool has(FirmwareText wanted) const;

private:
    const Sysroot* root_;
};

} // namespace ostrelum::linux_platform
