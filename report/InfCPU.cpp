#include "figures/Processor.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum {
namespace {

ReportRow speed_row()
{
    const ClockFigure clock = clock_figure();
    return {Trad[clock.title == 0 ? 83 : clock.title], known(clock.text)};
}

} // namespace

void InfCPU()
{
    read_processor();

    write_rows({
        {Trad[36], known(Datos[1])},
        speed_row(),
        {Trad[84], known(processor_count())},
        {Trad[59], known(Datos[3])},
        {Trad[61], known(Datos[4])},
        {Trad[85], known(Datos[5])},
        {Trad[86], known(architecture())},
        {Trad[87], known(cache_size(Datos[7]))},
        {Trad[88], known(cache_size(Datos[8]))},
    });
}

} // namespace ostrelum
