#pragma once

#include "platform/linux/devices/GraphicsCards.h"
#include "platform/linux/files/MachineView.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

/// The driver of a graphics card, and what only the driver knows.
namespace ostrelum::linux_platform {

/// Name of the driver's module, or of the driver itself if it is a part of the kernel. Nothing for
/// a card without a driver.
std::optional<std::string> graphics_driver(const Sysroot& root, const GraphicsCard& card);

/// The driver's own version; drivers that come with the kernel have the kernel's.
std::optional<std::string> graphics_driver_version(const Sysroot& root, const std::string& driver);

/// Day on which the driver was built.
std::optional<std::chrono::year_month_day> graphics_driver_date(const Sysroot& root,
                                                                const std::string& driver);

/// Bytes of the card's own memory. The window through which the processor sees it is no measure:
/// it can be smaller and larger.
std::optional<std::uint64_t> graphics_memory(const MachineView& machine, const GraphicsCard& card);

} // namespace ostrelum::linux_platform
