#include "figures/Processor.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {
namespace {

ReportRow speed_row()
{
    const ClockFigure clock = clock_figure();
    return {Trad[clock.title.value_or(Text::Speed)], known(clock.text)};
}

} // namespace

void InfCPU()
{
    read_processor();

    write_rows({
        {Trad[Text::Name], known(Datos[ProcessorSlot::Name])},
        speed_row(),
        {Trad[Text::CoreCount], known(processor_count())},
        {Trad[Text::Manufacturer], known(Datos[ProcessorSlot::Manufacturer])},
        {Trad[Text::Type], known(Datos[ProcessorSlot::Type])},
        {Trad[Text::Socket], known(Datos[ProcessorSlot::Socket])},
        {Trad[Text::Architecture], known(architecture())},
        {Trad[Text::L2CacheSize], known(cache_size(Datos[ProcessorSlot::L2Cache]))},
        {Trad[Text::L3CacheSize], known(cache_size(Datos[ProcessorSlot::L3Cache]))},
    });
}

} // namespace ostrelum::inline report
