#include "figures/MemoryModules.h"
#include "figures/Slots.h"
#include "report/Body.h"
#include "report/Stages.h"
#include "sources/MemoryCodes.h"

namespace ostrelum {

void InfRAM()
{
    read_memory_modules();
    query("Select LargeSystemCache from Win32_OperatingSystem");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[5] = trimmed(item["LargeSystemCache"]); });
    });

    write_rows({
        {Trad[61], known(memory_type_text(Datos[1]))},
        {Trad[90], known(form_factor_text(Datos[2]))},
        {Trad[91], known(total_memory())},
        {Trad[94], known(modules_installed())},
        {Trad[95], known(memory_width())},
        {Trad[96], known(favoured_use())},
    });
}

} // namespace ostrelum
