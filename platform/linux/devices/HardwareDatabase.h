#pragma once

#include <libudev.h>
#include <memory>
#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// The compiled database of hardware names of the system that the program runs on.
class HardwareDatabase {
public:
    HardwareDatabase();

    /// What the database has under `key` for a device, which is given by the kernel's alias such as
    /// "usb:v046DpC31C". Nothing without a database.
    std::optional<std::string> text(const std::string& alias, const char* key) const;

private:
    std::unique_ptr<udev, udev* (*)(udev*)> udev_;
    std::unique_ptr<udev_hwdb, udev_hwdb* (*)(udev_hwdb*)> database_;
};

} // namespace ostrelum::linux_platform
