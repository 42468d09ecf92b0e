#pragma once

#include "platform/linux/files/MachineView.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Keyboards and pointing devices, as the kernel's input layer and udev describe them.
namespace ostrelum::linux_platform {

enum class InputKind { Keyboard, Pointer };

/// Numbers of linux/input.h for the bus that an input device hangs on.
enum InputBus : std::uint16_t {
    BusUsb = 0x03,
    BusHil = 0x04,
    BusBluetooth = 0x05,
    BusVirtual = 0x06,
    BusI8042 = 0x11,
    BusRs232 = 0x13,
    BusAdb = 0x17,
    BusI2c = 0x18,
    BusSpi = 0x1C,
    BusRmi = 0x1D,
};

struct InputNode {
    /// Its folder, such as "/sys/class/input/input3".
    std::string folder;
    /// Folder of the device that it is a part of: the USB device, else what the kernel has above
    /// it.
    std::string hardware;
};

/// The devices of a kind: hardware that is nothing else first, then what is a keyboard and a
/// pointer in one, each in the order in which the kernel found it. One that has several parts, as
/// keyboards with extra keys do, comes once; those that programs make are left out.
std::vector<InputNode> input_nodes(const Sysroot& root, InputKind kind);

/// Its number of the bus.
std::optional<std::uint16_t> input_bus(const Sysroot& root, const InputNode& node);

/// Its maker.
std::optional<std::string> input_maker(const MachineView& machine, const InputNode& node);

} // namespace ostrelum::linux_platform
