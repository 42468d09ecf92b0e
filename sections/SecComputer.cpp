#include "figures/Computer.h"
#include "frame/Page.h"
#include "sections/Sections.h"
#include "sources/Texts.h"

namespace ostrelum {

void SecComputer()
{
    enter_section(3);
    read_computer();

    F1.Titulo.Caption = Trad[13];
    hide(F1.LNoDrive, F1.Line1, F1.Iaviso, F1.Laviso);
    plain_title(1);
    set_row(1, Trad[59], Datos[1]);
    set_row(2, Trad[60], Datos[2]);
    set_row(3, Trad[61], Datos[3]);
    F1.LT(3).ToolTipText.clear();
    set_row(4, Trad[62], restart_option());
    F1.LT(4).ToolTipText = Trad[63];
    set_row(5, Trad[66], startup_delay());
    F1.LT(5).ToolTipText = Trad[67];
    set_row(6, Trad[69], CapitalText(Datos[6]));
    empty_rows(7, 12);
}

} // namespace ostrelum
