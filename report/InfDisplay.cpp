#include "figures/DisplayFigures.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum {

void InfDisplay()
{
    read_display();
    const RefreshLimits limits = refresh_limits();

    write_rows({
        {Trad[109], known(Datos[1])},
        {Trad[59], known(Datos[2])},
        {Trad[110], known(Datos[3])},
        {Trad[limits.title], known(limits.text)},
    });
}

void InfGraphics()
{
    write_rows({
        {Trad[119], known(Datos[6])},
        {Trad[120], known(graphics_memory())},
        {Trad[121], known(Datos[7])},
        {Trad[122], known(Datos[8])},
        {Trad[123], known(Datos[9])},
        {Trad[124], known(driver_date)},
    });
}

} // namespace ostrelum
