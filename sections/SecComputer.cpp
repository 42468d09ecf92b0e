#include "figures/Computer.h"
#include "frame/Page.h"
#include "sections/Sections.h"
#include "sources/Texts.h"

namespace ostrelum::inline sections {

void SecComputer()
{
    enter_section(ComputerPage);
    read_computer();

    show_title();
    hide(F1.LNoDrive, F1.Line1, F1.Iaviso, F1.Laviso);
    plain_title(1);
    set_row(1, Trad[Text::Manufacturer], Datos[ComputerSlot::Manufacturer]);
    set_row(2, Trad[Text::Model], Datos[ComputerSlot::Model]);
    set_row(3, Trad[Text::Type], Datos[ComputerSlot::Type]);
    F1.LT(3).ToolTipText.clear();
    set_row(4, Trad[Text::AutoRestart], restart_option());
    F1.LT(4).ToolTipText = Trad[Text::AutoRestartHint];
    set_row(5, Trad[Text::StartupDelay], startup_delay());
    F1.LT(5).ToolTipText = Trad[Text::StartupDelayHint];
    set_row(6, Trad[Text::Workgroup], CapitalText(Datos[ComputerSlot::Domain]));
    empty_rows(7, 12);
}

} // namespace ostrelum::inline sections
