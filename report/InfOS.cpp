#include "figures/OperatingSystem.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"
#include "sources/LanguageCodes.h"

namespace ostrelum {

void InfOS()
{
    read_operating_system(MemoryFigures::Total);

    write_rows({
        {Trad[36], known(Datos[1])},
        {Trad[70], Datos[2]},
        {Trad[71], service_pack()},
        {Trad[61], known(Datos[4])},
        {Trad[74], known(Datos[5])},
        {Trad[75], known(Datos[6])},
        {Trad[76], known(language_name(Datos[7]))},
        {Trad[77], known(Datos[8])},
        {Trad[78], known(process_count(Datos[9]))},
        {Trad[79], known(install_date())},
        {Trad[161], Num1 >= 1 ? std::to_string(Num1) + " MB" : Trad[89]},
    });
}

} // namespace ostrelum
