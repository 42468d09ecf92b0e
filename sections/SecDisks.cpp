#include "frame/HardDrives.h"
#include "frame/Numbers.h"
#include "frame/Page.h"
#include "sections/ListRows.h"
#include "sections/Sections.h"

namespace ostrelum {

void SecDisks()
{
    enter_section(7);
    hide(F1.LNoDrive, F1.Iaviso, F1.Laviso);
    read_hard_drives({.names = 1,
                      .letters = 2,
                      .capacities = 3,
                      .used = 4,
                      .free = 5,
                      .internal_names = 6,
                      .file_systems = 7,
                      .serials = 8,
                      .partitions = 9});

    F1.Titulo.Caption = Trad[17];
    hide(F1.Line1, F1.Iaviso, F1.Laviso);
    plain_title(1);
    plain_title(8);
    set_list_row(1, Trad[36], Datos[1], NameTail);
    set_list_row(2, Trad[100], Datos[2], NameTail);
    set_list_row(3, Trad[101], Datos[3], SizeTail);
    set_list_row(4, Trad[102], Datos[4], SizeTail);
    set_list_row(5, Trad[103], Datos[5], SizeTail);
    set_list_row(6, Trad[104], Datos[6], NameTail);
    set_list_row(7, Trad[105], Datos[7], NameTail);
    set_list_row(8, Trad[74], Datos[8], NameTail);
    set_row(9, Trad[106], at_least(Datos[9], 1) ? Datos[9] : "");
    clear_title_tooltips(3, 5);
    empty_rows(10, 12);
}

} // namespace ostrelum
