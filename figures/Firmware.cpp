#include "figures/Firmware.h"

#include "figures/Figures.h"
#include "figures/PassOver.h"
#include "figures/Slots.h"

namespace ostrelum::inline figures {

void read_firmware()
{
    clear(Datos, 1, 5);
    query(
        "Select Name, Manufacturer, SMBIOSBIOSVersion, ReleaseDate, SerialNumber from Win32_BIOS");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[1] = trimmed(item["Name"]); });
        attempt([&] { Datos[2] = trimmed(item["Manufacturer"]); });
        attempt([&] { Datos[3] = trimmed(item["SMBIOSBIOSVersion"]); });
        attempt([&] { Datos[4] = trimmed(item["ReleaseDate"]); });
        attempt([&] { Datos[5] = trimmed(item["SerialNumber"]); });
    });
}

std::string release_date()
{
    return Datos[4].empty() ? "" : WmiDateText(Datos[4]);
}

} // namespace ostrelum::inline figures
