#include "figures/Processor.h"
#include "frame/Page.h"
#include "sections/Sections.h"

namespace ostrelum::inline sections {
namespace {

/// Without a speed the title stays as another page left it.
void set_speed_row()
{
    const ClockFigure speed = clock_figure();
    if (speed.title)
        set_title(2, Trad[*speed.title] + " ");
    else
        place_value(2);
    set_value(2, speed.text);
}

} // namespace

void SecCPU()
{
    enter_section(ProcessorPage);
    read_processor();

    show_title();
    hide(F1.LNoDrive, F1.Iaviso, F1.Laviso, F1.Line1);
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[Text::Name], Datos[ProcessorSlot::Name]);
    set_speed_row();
    set_row(3, Trad[Text::CoreCount], processor_count());
    set_row(4, Trad[Text::Manufacturer], Datos[ProcessorSlot::Manufacturer]);
    set_row(5, Trad[Text::Type], Datos[ProcessorSlot::Type]);
    set_row(6, Trad[Text::Socket], Datos[ProcessorSlot::Socket]);
    set_row(7, Trad[Text::Architecture], architecture());
    set_row(8, Trad[Text::L2CacheSize], cache_size(Datos[ProcessorSlot::L2Cache]));
    set_row(9, Trad[Text::L3CacheSize], cache_size(Datos[ProcessorSlot::L3Cache]));
    clear_title_tooltips(3, 5);
    empty_rows(10, 12);
}

} // namespace ostrelum::inline sections
