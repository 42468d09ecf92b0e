#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/FirmwareTable.h"
#include "platform/linux/devices/MemoryDevices.h"
#include "platform/linux/devices/UdevDatabase.h"

#include <vector>

namespace ostrelum::linux_platform {
namespace {

/// 64-bit numbers are text.
Value capacity(const MemoryDevice& device)
{
    return device.capacity ? Value(std::to_string(*device.capacity)) : Value();
}

Value locator(const MemoryDevice& device)
{
    return value_of(device.locator);
}
Value form_factor(const MemoryDevice& device)
{
    return value_of(device.form_factor);
}
Value memory_type(const MemoryDevice& device)
{
    return value_of(device.type);
}
Value total_width(const MemoryDevice& device)
{
    return value_of(device.total_width);
}

constexpr PropertyRow<MemoryDevice> rows[] = {
    {"Capacity", capacity},      {"DeviceLocator", locator},  {"FormFactor", form_factor},
    {"MemoryType", memory_type}, {"TotalWidth", total_width},
};

/// The fitted modules in the firmware's order; without records of modules all memory as one, which
/// pages add to the total but do not count as a module.
std::vector<MemoryDevice> modules(const MachineView& machine)
{
    auto modules = published_memory(udev_record(machine.root, "+dmi:id"));
    if (modules.empty())
        modules = memory_of_table(bytes_of(firmware_table(machine.root)));
    if (modules.empty())
        modules = memory_of_controllers(machine.root);
    if (const auto all = modules.empty() ? memory_of_kernel(machine.root) : std::nullopt)
        modules.push_back(*all);
    return modules;
}

} // namespace

constinit const LinuxClass Win32_PhysicalMemory =
    linux_class<rows, modules>("Win32_PhysicalMemory");

} // namespace ostrelum::linux_platform
