#include "figures/Computer.h"

#include "figures/PassOver.h"
#include "figures/Slots.h"
#include "sources/Texts.h"

namespace ostrelum::inline figures {

void read_computer()
{
    clear(Datos, 1, 6);
    query("Select Manufacturer, Model, SystemType, AutomaticResetBootOption, SystemStartupDelay, "
          "Domain from Win32_ComputerSystem");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[1] = trimmed(item["Manufacturer"]); });
        attempt([&] { Datos[2] = trimmed(item["Model"]); });
        attempt([&] { Datos[3] = trimmed(item["SystemType"]); });
        attempt([&] { Datos[4] = trimmed(item["AutomaticResetBootOption"]); });
        attempt([&] { Datos[5] = trimmed(item["SystemStartupDelay"]); });
        attempt([&] { Datos[6] = trimmed(item["Domain"]); });
    });
}

std::string restart_option()
{
    if (Datos[4] == Value(true).text())
        return Trad[Text::On];
    return Datos[4] == Value(false).text() ? Trad[Text::Off] : "";
}

std::string startup_delay()
{
    return Datos[5].empty() ? "" : FillMark(Trad[Text::Seconds], "(#)", Datos[5]);
}

} // namespace ostrelum::inline figures
