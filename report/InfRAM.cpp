#include "figures/MemoryModules.h"
#include "figures/Slots.h"
#include "report/Body.h"
#include "report/Stages.h"
#include "sources/MemoryCodes.h"

namespace ostrelum::inline report {

void InfRAM()
{
    read_memory_modules();
    query("Select LargeSystemCache from Win32_OperatingSystem");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[MemorySlot::FavouredUse] = trimmed(item["LargeSystemCache"]); });
    });

    write_rows({
        {Trad[Text::Type], known(memory_type_text(Datos[MemorySlot::Type]))},
        {Trad[Text::ChipType], known(form_factor_text(Datos[MemorySlot::FormFactor]))},
        {Trad[Text::TotalMemory], known(total_memory())},
        {Trad[Text::ModulesInstalled], known(modules_installed())},
        {Trad[Text::DataBusWidth], known(memory_width())},
        {Trad[Text::FavouredUse], known(favoured_use())},
    });
}

} // namespace ostrelum::inline report
