#include "figures/Computer.h"

#include "figures/PassOver.h"
#include "figures/Slots.h"
#include "sources/Texts.h"

namespace ostrelum::inline figures {

void read_computer()
{
    clear(Datos, ComputerSlot::Manufacturer, ComputerSlot::Domain);
    query("Select Manufacturer, Model, SystemType, AutomaticResetBootOption, SystemStartupDelay, "
          "Domain from Win32_ComputerSystem");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[ComputerSlot::Manufacturer] = trimmed(item["Manufacturer"]); });
        attempt([&] { Datos[ComputerSlot::Model] = trimmed(item["Model"]); });
        attempt([&] { Datos[ComputerSlot::Type] = trimmed(item["SystemType"]); });
        attempt([&] {
            Datos[ComputerSlot::RestartsAfterError] = trimmed(item["AutomaticResetBootOption"]);
        });
        attempt([&] { Datos[ComputerSlot::StartupDelay] = trimmed(item["SystemStartupDelay"]); });
        attempt([&] { Datos[ComputerSlot::Domain] = trimmed(item["Domain"]); });
    });
}

std::string restart_option()
{
    if (Datos[ComputerSlot::RestartsAfterError] == Value(true).text())
        return Trad[Text::On];
    return Datos[ComputerSlot::RestartsAfterError] == Value(false).text() ? Trad[Text::Off] : "";
}

std::string startup_delay()
{
    return Datos[ComputerSlot::StartupDelay].empty()
               ? ""
               : FillMark(Trad[Text::Seconds], "(#)", Datos[ComputerSlot::StartupDelay]);
}

} // namespace ostrelum::inline figures
