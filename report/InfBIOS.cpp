#include "figures/Firmware.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {

void InfBIOS()
{
    read_firmware();

    write_rows({
        {Trad[Text::Name], known(Datos[FirmwareSlot::Name])},
        {Trad[Text::Manufacturer], known(Datos[FirmwareSlot::Manufacturer])},
        {Trad[Text::Version], known(Datos[FirmwareSlot::Version])},
        {Trad[Text::ReleaseDate], known(release_date)},
        {Trad[Text::SerialNumber], known(Datos[FirmwareSlot::SerialNumber])},
    });
}

} // namespace ostrelum::inline report
