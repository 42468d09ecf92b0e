#include "figures/DisplayFigures.h"
#include "frame/Page.h"
#include "sections/Sections.h"

namespace ostrelum::inline sections {
namespace {

void set_refresh_row()
{
    const RefreshLimits limits = refresh_limits();
    set_row(4, Trad[limits.title], limits.text);
    F1.LT(4).ToolTipText = Trad[limits.explanation];
}

} // namespace

void SecDisplay()
{
    enter_section(DisplayPage);
    read_display(HalfKnownMode::Shown);

    show_title();
    hide(F1.LNoDrive, F1.Line1, F1.Iaviso, F1.Laviso);
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[Text::DisplayName], Datos[DisplaySlot::MonitorName]);
    set_row(2, Trad[Text::Manufacturer], Datos[DisplaySlot::MonitorManufacturer]);
    set_row(3, Trad[Text::CurrentConfiguration], Datos[DisplaySlot::Mode]);
    F1.LT(3).ToolTipText = Trad[Text::CurrentConfigurationHint];
    set_refresh_row();
    empty_rows(5, 5);
    clear_title_tooltips(5, 5);
    place_line(F1.Line1, 5, 10);
    set_row(6, Trad[Text::GraphicsCardName], Datos[DisplaySlot::CardName]);
    set_row(7, Trad[Text::MemorySize], graphics_memory());
    set_row(8, Trad[Text::MemoryType], Datos[DisplaySlot::MemoryType]);
    set_row(9, Trad[Text::DriverName], Datos[DisplaySlot::Drivers]);
    set_row(10, Trad[Text::DriverVersion], Datos[DisplaySlot::DriverVersion]);
    set_row(11, Trad[Text::DriverDate], driver_date);
    empty_rows(12, 12);
}

} // namespace ostrelum::inline sections
