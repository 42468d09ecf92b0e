#include "figures/OperatingSystem.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"
#include "sources/LanguageCodes.h"

namespace ostrelum::inline report {

void InfOS()
{
    read_operating_system(MemoryFigures::Total);

    write_rows({
        {Trad[Text::Name], known(Datos[1])},
        {Trad[Text::VersionAndBuild], Datos[2]},
        {Trad[Text::ServicePack], service_pack()},
        {Trad[Text::Type], known(Datos[4])},
        {Trad[Text::SerialNumber], known(Datos[5])},
        {Trad[Text::LicenseCode], known(Datos[6])},
        {Trad[Text::SystemLanguage], known(language_name(Datos[7]))},
        {Trad[Text::RegisteredBy], known(Datos[8])},
        {Trad[Text::ProcessCount], known(process_count(Datos[9]))},
        {Trad[Text::InstallDate], known(install_date())},
        {Trad[Text::TotalVirtualMemory],
         Num1 >= 1 ? std::to_string(Num1) + " MB" : Trad[Text::Unknown]},
    });
}

} // namespace ostrelum::inline report
