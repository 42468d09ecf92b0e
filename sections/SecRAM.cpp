#include "figures/MemoryModules.h"
#include "frame/Page.h"
#include "sections/MemoryRows.h"
#include "sections/Sections.h"
#include "sources/MemoryCodes.h"

namespace ostrelum::inline sections {
namespace {

void read_use_of_memory()
{
    Num2 = 0;
    query("Select FreePhysicalMemory, LargeSystemCache from Win32_OperatingSystem");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Num2 = item["FreePhysicalMemory"].as_int32(); });
        attempt([&] { Datos[MemorySlot::FavouredUse] = trimmed(item["LargeSystemCache"]); });
    });
}

} // namespace

void SecRAM()
{
    if (F1.Seccion != MemoryPage)
        F1.Line1.Visible = false;
    enter_section(MemoryPage);
    hide(F1.LNoDrive, F1.Iaviso, F1.Laviso);

    read_memory_modules();
    ram_total = Num1;
    read_use_of_memory();

    show_title();
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[Text::Type], memory_type_text(Datos[MemorySlot::Type]));
    set_row(2, Trad[Text::ChipType], form_factor_text(Datos[MemorySlot::FormFactor]));
    set_row(3, Trad[Text::TotalMemory], total_memory());
    set_title(4, Trad[Text::MemoryInUse] + " ");
    set_title(5, Trad[Text::AvailableMemory] + " ");
    set_memory_values();
    set_row(6, Trad[Text::ModulesInstalled], modules_installed());
    set_row(7, Trad[Text::DataBusWidth], memory_width());
    set_row(8, Trad[Text::FavouredUse], favoured_use());
    clear_title_tooltips(3, 5);
    empty_rows(9, 12);
    F1.Timer1.Enabled = true;
}

} // namespace ostrelum::inline sections
