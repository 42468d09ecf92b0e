#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/FirmwareStrings.h"
#include "platform/linux/formats/CimDateTime.h"
#include "platform/linux/text/Text.h"

#include <vector>

namespace ostrelum::linux_platform {
namespace {

Value manufacturer(const FirmwareStrings& firmware)
{
    return value_of(firmware.text(FirmwareText::BiosVendor));
}

Value version(const FirmwareStrings& firmware)
{
    return value_of(firmware.text(FirmwareText::BiosVersion));
}

/// The day that firmware writes as mm/dd/yyyy, or mm/dd/yy for one before 2000.
std::optional<std::string> day_of(std::string_view date)
{
    if ((date.size() != 8 && date.size() != 10) || date[2] != '/' || date[5] != '/')
        return std::nullopt;
    const auto month = whole_number(date.substr(0, 2));
    const auto day = whole_number(date.substr(3, 2));
    const auto year = whole_number(date.substr(6));
    if (!month || !day || !year)
        return std::nullopt;
    const std::uint64_t century = date.size() == 8 ? 1900 : 0;
    return cim_datetime(std::chrono::year(static_cast<int>(century + *year)) /
                        static_cast<int>(*month) / static_cast<int>(*day));
}

Value release_date(const FirmwareStrings& firmware)
{
    const auto date = firmware.text(FirmwareText::BiosDate);
    return date ? value_of(day_of(*date)) : Value();
}

Value serial_number(const FirmwareStrings& firmware)
{
    return value_of(firmware.text(FirmwareText::SystemSerial));
}

constexpr PropertyRow<FirmwareStrings> rows[] = {
    {"Manufacturer", manufacturer}, {"Name", version},
    {"ReleaseDate", release_date},  {"SerialNumber", serial_number},
    {"SMBIOSBIOSVersion", version},
};

/// One, if anything is known of the firmware.
std::vector<FirmwareStrings> firmware(const MachineView& machine)
{
    const FirmwareStrings strings(machine.root);
    for (const auto text : {FirmwareText::BiosVendor, FirmwareText::BiosVersion,
                            FirmwareText::BiosDate, FirmwareText::SystemSerial}) {
        if (strings.has(text))
            return {strings};
    }
    return {};
}

} // namespace

constinit const LinuxClass Win32_BIOS = linux_class<rows, firmware>("Win32_BIOS");

} // namespace ostrelum::linux_platform
