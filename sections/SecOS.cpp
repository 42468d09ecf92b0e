#include "figures/OperatingSystem.h"
#include "frame/Page.h"
#include "sections/Sections.h"
#include "sections/SystemRows.h"
#include "sources/LanguageCodes.h"

namespace ostrelum::inline sections {
namespace {

/// Where the service answers, but knows no system, the version stays empty and there is no service
/// pack; where the query or a property fails, what is empty is unknown.
void set_version_rows(bool all_told)
{
    set_title(2, Trad[Text::VersionAndBuild] + " ");
    if (all_told)
        set_bare_value(2, Datos[SystemSlot::Version]);
    else
        set_value(2, Datos[SystemSlot::Version]);
    set_row(3, Trad[Text::ServicePack],
            all_told || !Datos[SystemSlot::ServicePack].empty() ? service_pack() : std::string());
}

} // namespace

void SecOS()
{
    if (F1.Seccion != SystemPage)
        F1.Line1.Visible = false;
    enter_section(SystemPage);
    hide(F1.LNoDrive, F1.Iaviso, F1.Laviso);
    const bool all_told = read_operating_system(MemoryFigures::TotalAndUsed);

    show_title();
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[Text::Name], Datos[SystemSlot::Name]);
    set_version_rows(all_told);
    set_row(4, Trad[Text::Type], Datos[SystemSlot::Architecture]);
    set_row(5, Trad[Text::SerialNumber], Datos[SystemSlot::SerialNumber]);
    set_row(6, Trad[Text::LicenseCode], Datos[SystemSlot::ProductKey]);
    set_row(7, Trad[Text::SystemLanguage], language_name(Datos[SystemSlot::Language]));
    set_row(8, Trad[Text::RegisteredBy], Datos[SystemSlot::RegisteredUser]);
    set_row(9, Trad[Text::ProcessCount], process_count(Datos[SystemSlot::ProcessCount]));
    set_row(10, Trad[Text::InstallDate], install_date());
    set_virtual_memory_row();
    clear_title_tooltips(3, 5);
    empty_rows(12, 12);
    F1.Timer1.Enabled = true;
}

} // namespace ostrelum::inline sections
