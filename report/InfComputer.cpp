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
        {Trad[Text::Manufacturer], known(Datos[1])},
        {Trad[Text::Model], known(Datos[2])},
        {Trad[Text::Type], known(Datos[3])},
        {Trad[Text::AutoRestart], known(restart_option())},
        {Trad[Text::StartupDelay], known(startup_delay())},
        {Trad[Text::Workgroup], known(CapitalText(Datos[6]))},
    });
}

} // namespace ostrelum::inline report
