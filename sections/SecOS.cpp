#include "figures/OperatingSystem.h"
#include "frame/Page.h"
#include "sections/Sections.h"
#include "sections/SystemRows.h"
#include "sources/LanguageCodes.h"

namespace ostrelum {
namespace {

/// Version and service pack have a text for a service that knows no system; where it fails to tell
/// them, they are unknown like all else.
void set_version_rows(bool all_told)
{
    set_title(2, Trad[70] + " ");
    if (all_told)
        set_bare_value(2, Datos[2]);
    else
        set_value(2, Datos[2]);
    set_row(3, Trad[71], all_told || !Datos[3].empty() ? service_pack() : std::string());
}

} // namespace

void SecOS()
{
    if (F1.Seccion != 4)
        F1.Line1.Visible = false;
    enter_section(4);
    hide(F1.LNoDrive, F1.Iaviso, F1.Laviso);
    const bool all_told = read_operating_system(MemoryFigures::TotalAndUsed);

    F1.Titulo.Caption = Trad[14];
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[36], Datos[1]);
    set_version_rows(all_told);
    set_row(4, Trad[61], Datos[4]);
    set_row(5, Trad[74], Datos[5]);
    set_row(6, Trad[75], Datos[6]);
    set_row(7, Trad[76], language_name(Datos[7]));
    set_row(8, Trad[77], Datos[8]);
    set_row(9, Trad[78], process_count(Datos[9]));
    set_row(10, Trad[79], install_date());
    set_virtual_memory_row();
    clear_title_tooltips(3, 5);
    empty_rows(12, 12);
    F1.Timer1.Enabled = true;
}

} // namespace ostrelum
