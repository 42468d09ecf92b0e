#include "platform/linux/services/MachineShell.h"

#include "platform/linux/devices/FirmwareStrings.h"
#include "sources/Ascii.h"

#include <utility>

namespace ostrelum::linux_platform {
namespace {

bool is_board_name(const std::string& name)
{
    return same_ascii_letters(name,
                              "HKEY_CURRENT_USER\\Software\\Install\\Ostrelum\\Mainboard\\Full");
}

/// Throws Failure if neither is known.
std::string board_name(const FirmwareStrings& firmware)
{
    const auto maker = firmware.text(FirmwareText::BoardVendor);
    const auto board = firmware.text(FirmwareText::BoardName);
    if (maker && board)
        return *maker + " " + *board;
    if (!maker && !board)
        throw Failure("the firmware does not name the board");
    return maker ? *maker : *board;
}

} // namespace

MachineShell::MachineShell(const std::string& root, std::unique_ptr<Shell> stored)
    : MachineShell(Sysroot(root), std::move(stored))
{
}

MachineShell::MachineShell(Sysroot root, std::unique_ptr<Shell> stored)
    : root_(std::move(root)), stored_(std::move(stored))
{
}

RegValue MachineShell::RegRead(const std::string& name)
{
    return is_board_name(name) ? board_name(FirmwareStrings(root_)) : stored_->RegRead(name);
}

void MachineShell::RegWrite(const std::string& name, const RegValue& value, const std::string& type)
{
    if (is_board_name(name))
        throw Failure("the board's name is the machine's own");
    stored_->RegWrite(name, value, type);
}

std::string MachineShell::SpecialFolders(const std::string& name)
{
    return stored_->SpecialFolders(name);
}

} // namespace ostrelum::linux_platform
