#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/InputDevices.h"

#include <vector>

namespace ostrelum::linux_platform {
namespace {

struct Keyboard {
    const MachineView& machine;
    InputNode node;
};

Value description(const Keyboard& keyboard)
{
    switch (input_bus(keyboard.machine.root, keyboard.node).value_or(0)) {
    case BusI8042: return "PS/2 keyboard";
    case BusUsb: return "USB keyboard";
    case BusBluetooth: return "Bluetooth keyboard";
    default: return "Keyboard";
    }
}

Value keyboard_name(const Keyboard& keyboard)
{
    return value_of(keyboard.machine.root.text(keyboard.node.folder + "/name"));
}

constexpr PropertyRow<Keyboard> rows[] = {
    {"Description", description},
    {"Name", keyboard_name},
};

std::vector<Keyboard> keyboards(const MachineView& machine)
{
    std::vector<Keyboard> keyboards;
    for (InputNode& node : input_nodes(machine.root, InputKind::Keyboard))
        keyboards.push_back({machine, std::move(node)});
    return keyboards;
}

} // namespace

constinit const LinuxClass Win32_Keyboard = linux_class<rows, keyboards>("Win32_Keyboard");

} // namespace ostrelum::linux_platform
