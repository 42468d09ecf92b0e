#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/InputDevices.h"

#include <vector>

namespace ostrelum::linux_platform {
namespace {

struct Pointer {
    const MachineView& machine;
    InputNode node;
};

/// CIM_PointingDevice.Handedness.
enum Handedness { RightHanded = 2, LeftHanded = 3 };

/// CIM_PointingDevice.DeviceInterface, and those that the Win32 extension adds.
enum DeviceInterface { Other = 1, Unknown = 2, Serial = 3, Ps2 = 4, HpHil = 6, Adb = 8, Usb = 162 };

struct InterfaceOfBus {
    std::uint16_t bus;
    DeviceInterface interface;
};
constexpr InterfaceOfBus interfaces[] = {
    {BusUsb, Usb},   {BusHil, HpHil},    {BusBluetooth, Other}, {BusVirtual, Other},
    {BusI8042, Ps2}, {BusRs232, Serial}, {BusAdb, Adb},         {BusI2c, Other},
    {BusSpi, Other}, {BusRmi, Other},
};

Value device_interface(const Pointer& pointer)
{
    const auto bus = input_bus(pointer.machine.root, pointer.node);
    const auto row = std::ranges::find(interfaces, bus.value_or(0), &InterfaceOfBus::bus);
    return int{row == std::end(interfaces) ? Unknown : row->interface};
}

/// Every desktop is set up for the right hand at first.
Value handedness(const Pointer& pointer)
{
    const SessionFactsSource& session = pointer.machine.session;
    const bool left = session && session().left_handed.value_or(false);
    return int{left ? LeftHanded : RightHanded};
}

Value manufacturer(const Pointer& pointer)
{
    return value_of(input_maker(pointer.machine, pointer.node));
}

Value pointer_name(const Pointer& pointer)
{
    return value_of(pointer.machine.root.text(pointer.node.folder + "/name"));
}

constexpr PropertyRow<Pointer> rows[] = {
    {"DeviceInterface", device_interface},
    {"Handedness", handedness},
    {"Manufacturer", manufacturer},
    {"Name", pointer_name},
};

std::vector<Pointer> pointers(const MachineView& machine)
{
    std::vector<Pointer> pointers;
    for (InputNode& node : input_nodes(machine.root, InputKind::Pointer))
        pointers.push_back({machine, std::move(node)});
    return pointers;
}

} // namespace

constinit const LinuxClass Win32_PointingDevice =
    linux_class<rows, pointers>("Win32_PointingDevice");

} // namespace ostrelum::linux_platform
