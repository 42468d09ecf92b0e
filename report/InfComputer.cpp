#include "figures/Computer.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"
#include "sources/Texts.h"

namespace ostrelum::inline report {

void InfComputer()
{
    read_computer();

    write_rows({
        {Trad[Text::Manufacturer], known(Datos[ComputerSlot::Manufacturer])},
        {Trad[Text::Model], known(Datos[ComputerSlot::Model])},
        {Trad[Text::Type], known(Datos[ComputerSlot::Type])},
        {Trad[Text::AutoRestart], known(restart_option())},
        {Trad[Text::StartupDelay], known(startup_delay())},
        {Trad[Text::Workgroup], known(CapitalText(Datos[ComputerSlot::Domain]))},
    });
}

} // namespace ostrelum::inline report
