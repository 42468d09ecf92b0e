#pragma once

#include "platform/linux/files/MachineView.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Names of makers and devices for the numbers by which devices identify themselves: what udev
/// published for the device, then the hardware database.
namespace ostrelum::linux_platform {

/// Maker and model of a PCI device by its place, such as "0000:01:00.0".
struct PciNames {
    std::optional<std::string> vendor;
    std::optional<std::string> model;
};
PciNames pci_names(const MachineView& machine, const std::string& slot);

/// The numbers of a PCI device's maker and model, "10DE:1287", for one that has no name.
std::optional<std::string> pci_code(const Sysroot& root, const std::string& slot);

/// Maker by the number that the USB Implementers Forum gave it; devices on I2C use these numbers
/// too.
std::optional<std::string> usb_vendor(const MachineView& machine, std::uint16_t vendor);

/// Maker of a monitor, or of a notebook's panel, by its three letters. One that nobody knows is
/// called by the letters.
std::string monitor_maker(const MachineView& machine, const std::string& code, bool panel);

/// Of "GK208B [GeForce GT 730]" the name between the brackets, which is the one on the box; a text
/// without them is given whole.
std::string_view bracketed_name(std::string_view text);

} // namespace ostrelum::linux_platform
