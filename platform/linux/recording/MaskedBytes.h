#pragma once

#include <string>

/// Tables of firmware and monitors without their serial numbers, which keep their places and form.
namespace ostrelum::linux_platform {

/// The structures of the firmware, the machine, the board, processors and memory modules
/// (DSP0134, Smbios.h), with the texts that name makers, models and sockets; all else is
/// blanked.
std::string masked_firmware_table(const std::string& table);

/// The data of a monitor (Edid.h) without its serial numbers. Of a DisplayID extension its modes
/// and limits stay, of one of another standard than CTA-861 nothing; nothing for data that is none.
std::string masked_edid(const std::string& edid);

} // namespace ostrelum::linux_platform
