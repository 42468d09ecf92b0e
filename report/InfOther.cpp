#include "figures/OtherHardware.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum {

void InfOther()
{
    read_other_hardware();

    write_rows({
        {Trad[150], known(Datos[1])},
        {Trad[59], known(Datos[2])},
        {Trad[104], known(Datos[3])},
        {Trad[151], known(Datos[4])},
        {Trad[59], known(Datos[5])},
        {Trad[171], known(Datos[6])},
        {Trad[74], known(Datos[7])},
    });
}

} // namespace ostrelum
