#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/FirmwareFacts.h"

#include <vector>

namespace ostrelum {
namespace {

Value manufacturer(const FirmwareFacts& firmware)
{
    return value_of(firmware.text(FirmwareText::BoardVendor));
}

Value product(const FirmwareFacts& firmware)
{
    return value_of(firmware.text(FirmwareText::BoardName));
}

constexpr PropertyRow<FirmwareFacts> rows[] = {
    {"Manufacturer", manufacturer},
    {"Product", product},
};

/// One, if the firmware tells anything of the board.
std::vector<FirmwareFacts> board(const MachineView& machine)
{
    const FirmwareFacts facts(machine.root);
    if (facts.has(FirmwareText::BoardVendor) || facts.has(FirmwareText::BoardName))
        return {facts};
    return {};
}

} // namespace

constinit const LinuxClass Win32_BaseBoard = linux_class<rows, board>("Win32_BaseBoard");

} // namespace ostrelum
