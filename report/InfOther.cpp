#include "figures/OtherHardware.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {

void InfOther()
{
    read_other_hardware();

    write_rows({
        {Trad[Text::MotherboardName], known(Datos[1])},
        {Trad[Text::Manufacturer], known(Datos[2])},
        {Trad[Text::InternalName], known(Datos[3])},
        {Trad[Text::SoundCardName], known(Datos[4])},
        {Trad[Text::Manufacturer], known(Datos[5])},
        {Trad[Text::BatteryName], known(Datos[6])},
        {Trad[Text::SerialNumber], known(Datos[7])},
    });
}

} // namespace ostrelum::inline report
