#include "figures/Processor.h"
#include "frame/Page.h"
#include "sections/Sections.h"

namespace ostrelum {
namespace {

/// Without a speed the title stays as another page left it.
void set_speed_row()
{
    const ClockFigure speed = clock_figure();
    if (speed.title != 0)
        set_title(2, Trad[speed.title] + " ");
    set_value(2, speed.text);
}

} // namespace

void SecCPU()
{
    enter_section(5);
    read_processor();

    F1.Titulo.Caption = Trad[15];
    hide(F1.LNoDrive, F1.Iaviso, F1.Laviso, F1.Line1);
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[36], Datos[1]);
    set_speed_row();
    set_row(3, Trad[84], processor_count());
    set_row(4, Trad[59], Datos[3]);
    set_row(5, Trad[61], Datos[4]);
    set_row(6, Trad[85], Datos[5]);
    set_row(7, Trad[86], architecture());
    set_row(8, Trad[87], cache_size(Datos[7]));
    set_row(9, Trad[88], cache_size(Datos[8]));
    clear_title_tooltips(3, 5);
    empty_rows(10, 12);
}

} // namespace ostrelum
