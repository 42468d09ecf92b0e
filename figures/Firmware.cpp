#include "figures/Firmware.h"

#include "figures/Figures.h"
#include "figures/PassOver.h"
#include "figures/Slots.h"

namespace ostrelum::inline figures {

void read_firmware()
{
    clear(Datos, FirmwareSlot::Name, FirmwareSlot::SerialNumber);
    query(
        "Select Name, Manufacturer, SMBIOSBIOSVersion, ReleaseDate, SerialNumber from Win32_BIOS");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[FirmwareSlot::Name] = trimmed(item["Name"]); });
        attempt([&] { Datos[FirmwareSlot::Manufacturer] = trimmed(item["Manufacturer"]); });
        attempt([&] { Datos[FirmwareSlot::Version] = trimmed(item["SMBIOSBIOSVersion"]); });
        attempt([&] { Datos[FirmwareSlot::ReleaseDate] = trimmed(item["ReleaseDate"]); });
        attempt([&] { Datos[FirmwareSlot::SerialNumber] = trimmed(item["SerialNumber"]); });
    });
}

std::string release_date()
{
    return Datos[FirmwareSlot::ReleaseDate].empty() ? ""
                                                    : WmiDateText(Datos[FirmwareSlot::ReleaseDate]);
}

} // namespace ostrelum::inline figures
