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
        {Trad[Text::Name], known(Datos[SystemSlot::Name])},
        {Trad[Text::VersionAndBuild], Datos[SystemSlot::Version]},
        {Trad[Text::ServicePack], service_pack()},
        {Trad[Text::Type], known(Datos[SystemSlot::Architecture])},
        {Trad[Text::SerialNumber], known(Datos[SystemSlot::SerialNumber])},
        {Trad[Text::LicenseCode], known(Datos[SystemSlot::ProductKey])},
        {Trad[Text::SystemLanguage], known(language_name(Datos[SystemSlot::Language]))},
        {Trad[Text::RegisteredBy], known(Datos[SystemSlot::RegisteredUser])},
        {Trad[Text::ProcessCount], known(process_count(Datos[SystemSlot::ProcessCount]))},
        {Trad[Text::InstallDate], known(install_date())},
        {Trad[Text::TotalVirtualMemory],
         Num1 >= 1 ? std::to_string(Num1) + " MB" : Trad[Text::Unknown]},
    });
}

} // namespace ostrelum::inline report
