#include "figures/OtherHardware.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {

void InfOther()
{
    read_other_hardware();

    write_rows({
        {Trad[Text::MotherboardName], known(Datos[HardwareSlot::BoardFullName])},
        {Trad[Text::Manufacturer], known(Datos[HardwareSlot::BoardManufacturer])},
        {Trad[Text::InternalName], known(Datos[HardwareSlot::BoardProduct])},
        {Trad[Text::SoundCardName], known(Datos[HardwareSlot::SoundCardName])},
        {Trad[Text::Manufacturer], known(Datos[HardwareSlot::SoundCardManufacturer])},
        {Trad[Text::BatteryName], known(Datos[HardwareSlot::BatteryName])},
        {Trad[Text::SerialNumber], known(Datos[HardwareSlot::BatterySerial])},
    });
}

} // namespace ostrelum::inline report
