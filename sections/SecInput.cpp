#include "figures/InputFigures.h"
#include "frame/Page.h"
#include "sections/Sections.h"

namespace ostrelum {

void SecInput()
{
    enter_section(10);
    read_input();

    F1.Titulo.Caption = Trad[20];
    hide(F1.LNoDrive, F1.Line1, F1.Line2, F1.Iaviso, F1.Laviso);
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[125], Datos[1]);
    set_row(2, Trad[61], Datos[2]);
    empty_rows(3, 3);
    place_line(F1.Line1, 3, 9);
    set_row(4, Trad[126], Datos[3]);
    set_row(5, Trad[59], Datos[4]);
    set_row(6, Trad[127], mouse_buttons());
    set_row(7, Trad[128], pointer_interface());
    set_row(8, Trad[131], handedness());
    clear_title_tooltips(3, 5);
    empty_rows(9, 12);
}

} // namespace ostrelum
