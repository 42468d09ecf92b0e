#include "sections/SystemRows.h"

#include "figures/Figures.h"
#include "frame/Page.h"

namespace ostrelum::inline sections {

std::string usage_time()
{
    const std::string time = UptimeText();
    return time.empty() ? "" : FillMark(Trad[Text::ClockTime], "(HHMMSS)", time);
}

void set_virtual_memory_row()
{
    if (Num1 <= 0) {
        place_value(11);
        set_value(11, std::string());
    } else if (Num2 > 0 && Num2 < Num1)
        set_row(11, Trad[Text::VirtualMemoryInUse], [] { return UsedOfTotal(Num2, Num1); });
    else
        set_row(11, Trad[Text::TotalVirtualMemory], WholeText(Num1) + " MB");
}

} // namespace ostrelum::inline sections
