#include "figures/HardDrives.h"
#include "figures/Numbers.h"
#include "frame/Page.h"
#include "sections/ListRows.h"
#include "sections/Sections.h"

namespace ostrelum::inline sections {

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

    F1.Titulo.Caption = Trad[Text::HardDrives];
    hide(F1.Line1, F1.Iaviso, F1.Laviso);
    set_volume_rows();
    set_row(9, Trad[Text::TotalPartitions], at_least(Datos[9], 1) ? Datos[9] : "");
    clear_title_tooltips(3, 5);
    empty_rows(10, 12);
}

} // namespace ostrelum::inline sections
