#include "figures/Computer.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"
#include "sources/Texts.h"

namespace ostrelum {

void InfComputer()
{
    read_computer();

    write_rows({
        {Trad[59], known(Datos[1])},
        {Trad[60], known(Datos[2])},
        {Trad[61], known(Datos[3])},
        {Trad[62], known(restart_option())},
        {Trad[66], known(startup_delay())},
        {Trad[69], known(CapitalText(Datos[6]))},
    });
}

} // namespace ostrelum
