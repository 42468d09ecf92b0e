#include "platform/linux/classes/Classes.h"

namespace ostrelum::linux_platform {
namespace {

constexpr const LinuxClass* classes[] = {
    &Win32_BaseBoard,           &Win32_Battery,         &Win32_BIOS,
    &Win32_CDROMDrive,          &Win32_ComputerSystem,  &Win32_DesktopMonitor,
    &Win32_DiskDrive,           &Win32_Keyboard,        &Win32_LogicalDisk,
    &Win32_NetworkLoginProfile, &Win32_OperatingSystem, &Win32_PhysicalMemory,
    &Win32_PointingDevice,      &Win32_Processor,       &Win32_SoundDevice,
    &Win32_UserAccount,         &Win32_VideoController,
};

} // namespace

const LinuxClass* find_linux_class(std::string_view name)
{
    const auto found = std::ranges::find_if(classes, [&](const LinuxClass* each) {
        return same_ascii_letters(each->schema->name, name);
    });
    return found == std::end(classes) ? nullptr : *found;
}

} // namespace ostrelum::linux_platform
