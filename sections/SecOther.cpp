#include "figures/OtherHardware.h"
#include "frame/Page.h"
#include "sections/BatteryRows.h"
#include "sections/Sections.h"

namespace ostrelum {
namespace {

void leave_out(int row, Line& line)
{
    empty_rows(row, row);
    place_line(line, row, 10);
}

} // namespace

void SecOther()
{
    enter_section(13);
    read_other_hardware();

    F1.Titulo.Caption = Trad[23];
    hide(F1.LNoDrive, F1.Iaviso, F1.Laviso);
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[150], Datos[1]);
    set_row(2, Trad[59], Datos[2]);
    set_row(3, Trad[104], Datos[3]);
    leave_out(4, F1.Line1);
    set_row(5, Trad[151], Datos[4]);
    set_row(6, Trad[59], Datos[5]);
    leave_out(7, F1.Line2);
    set_row(8, Trad[171], Datos[6]);
    set_row(9, Trad[74], Datos[7]);
    set_title(10, Trad[172] + " ");
    set_title(11, Trad[174] + " ");
    set_title(12, Trad[175] + " ");
    set_battery_values(Datos[8], Datos[9], Datos[10]);
    clear_title_tooltips(3, 5);
    F1.Timer1.Enabled = true;
}

} // namespace ostrelum
