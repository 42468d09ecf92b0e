#include "figures/Firmware.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum {

void InfBIOS()
{
    read_firmware();

    write_rows({
        {Trad[36], known(Datos[1])},
        {Trad[59], known(Datos[2])},
        {Trad[107], known(Datos[3])},
        {Trad[108], known(release_date)},
        {Trad[74], known(Datos[5])},
    });
}

} // namespace ostrelum
