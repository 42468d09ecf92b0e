#include "figures/Firmware.h"
#include "frame/Page.h"
#include "sections/Sections.h"

namespace ostrelum::inline sections {

void SecBIOS()
{
    enter_section(FirmwarePage);
    read_firmware();

    show_title();
    hide(F1.LNoDrive, F1.Line1, F1.Iaviso, F1.Laviso);
    plain_title(1);
    set_row(1, Trad[Text::Name], Datos[FirmwareSlot::Name]);
    set_row(2, Trad[Text::Manufacturer], Datos[FirmwareSlot::Manufacturer]);
    set_row(3, Trad[Text::Version], Datos[FirmwareSlot::Version]);
    set_row(4, Trad[Text::ReleaseDate], release_date);
    set_row(5, Trad[Text::SerialNumber], Datos[FirmwareSlot::SerialNumber]);
    clear_title_tooltips(3, 5);
    empty_rows(6, 12);
}

} // namespace ostrelum::inline sections
