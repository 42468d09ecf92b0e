#pragma once

#include "platform/linux/files/Sysroot.h"

#include <memory>
#include <optional>
#include <string>
#include <systemd/sd-hwdb.h>

namespace ostrelum::linux_platform {

/// systemd's compiled database of hardware names. A recorded machine brings its own database, or in
/// /.facts/hwdb the answers that one gave, in lines of alias, key, "=" and value: with the
/// database of the system that shows it, it would get other names on each system.
class HardwareDatabase {
public:
    explicit HardwareDatabase(const Sysroot& root);

    /// What the database has under `key` for a device, which is given by the kernel's alias such as
    /// "usb:v046DpC31C". Nothing without a database.
    std::optional<std::string> text(const std::string& alias, const char* key) const;

private:
    Sysroot root_;
    std::unique_ptr<sd_hwdb, sd_hwdb* (*)(sd_hwdb*)> database_;
};

} // namespace ostrelum::linux_platform
