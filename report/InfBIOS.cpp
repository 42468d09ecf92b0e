#include "figures/Firmware.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {

void InfBIOS()
{
    read_firmware();

    write_rows({
        {Trad[Text::Name], known(Datos[1])},
        {Trad[Text::Manufacturer], known(Datos[2])},
        {Trad[Text::Version], known(Datos[3])},
        {Trad[Text::ReleaseDate], known(release_date)},
        {Trad[Text::SerialNumber], known(Datos[5])},
    });
}

} // namespace ostrelum::inline report
