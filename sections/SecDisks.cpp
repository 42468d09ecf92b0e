#include "figures/HardDrives.h"
#include "figures/Numbers.h"
#include "frame/Page.h"
#include "sections/ListRows.h"
#include "sections/Sections.h"

namespace ostrelum::inline sections {

void SecDisks()
{
    enter_section(DrivesPage);
    hide(F1.LNoDrive, F1.Iaviso, F1.Laviso);
    read_hard_drives();

    show_title();
    hide(F1.Line1, F1.Iaviso, F1.Laviso);
    set_volume_rows();
    set_row(9, Trad[Text::TotalPartitions],
            at_least(Datos[VolumeSlot::Partitions], 1) ? Datos[VolumeSlot::Partitions] : "");
    clear_title_tooltips(3, 5);
    empty_rows(10, 12);
}

} // namespace ostrelum::inline sections
