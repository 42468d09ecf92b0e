#include "figures/DisplayFigures.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {

void InfDisplay()
{
    read_display();
    const RefreshLimits limits = refresh_limits();

    write_rows({
        {Trad[Text::DisplayName], known(Datos[1])},
        {Trad[Text::Manufacturer], known(Datos[2])},
        {Trad[Text::CurrentConfiguration], known(Datos[3])},
        {Trad[limits.title], known(limits.text)},
    });
}

void InfGraphics()
{
    write_rows({
        {Trad[Text::GraphicsCardName], known(Datos[6])},
        {Trad[Text::MemorySize], known(graphics_memory())},
        {Trad[Text::MemoryType], known(Datos[7])},
        {Trad[Text::DriverName], known(Datos[8])},
        {Trad[Text::DriverVersion], known(Datos[9])},
        {Trad[Text::DriverDate], known(driver_date)},
    });
}

} // namespace ostrelum::inline report
