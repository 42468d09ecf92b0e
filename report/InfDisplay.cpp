#include "figures/DisplayFigures.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {

void InfDisplay()
{
    read_display(HalfKnownMode::Empty);
    const RefreshLimits limits = refresh_limits();

    write_rows({
        {Trad[Text::DisplayName], known(Datos[DisplaySlot::MonitorName])},
        {Trad[Text::Manufacturer], known(Datos[DisplaySlot::MonitorManufacturer])},
        {Trad[Text::CurrentConfiguration], known(Datos[DisplaySlot::Mode])},
        {Trad[limits.title], known(limits.text)},
    });
}

void InfGraphics()
{
    write_rows({
        {Trad[Text::GraphicsCardName], known(Datos[DisplaySlot::CardName])},
        {Trad[Text::MemorySize], known(graphics_memory())},
        {Trad[Text::MemoryType], known(Datos[DisplaySlot::MemoryType])},
        {Trad[Text::DriverName], known(Datos[DisplaySlot::Drivers])},
        {Trad[Text::DriverVersion], known(Datos[DisplaySlot::DriverVersion])},
        {Trad[Text::DriverDate], known(driver_date)},
    });
}

} // namespace ostrelum::inline report
