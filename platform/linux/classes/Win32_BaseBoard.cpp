#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/FirmwareStrings.h"

#include <vector>

namespace ostrelum::linux_platform {
namespace {

Value manufacturer(const FirmwareStrings& firmware)
{
    return value_of(firmware.text(FirmwareText::BoardVendor));
}

Value product(const FirmwareStrings& firmware)
{
    return value_of(firmware.text(FirmwareText::BoardName));
}

constexpr PropertyRow<FirmwareStrings> rows[] = {
    {"Manufacturer", manufacturer},
    {"Product", product},
};

/// One, if anything is known of the board.
std::vector<FirmwareStrings> board(const MachineView& machine)
{
    const FirmwareStrings strings(machine.root);
    if (strings.has(FirmwareText::BoardVendor) || strings.has(FirmwareText::BoardName))
        return {strings};
    return {};
}

} // namespace

constinit const LinuxClass Win32_BaseBoard = linux_class<rows, board>("Win32_BaseBoard");

} // namespace ostrelum::linux_platform
