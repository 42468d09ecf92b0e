#include "figures/OperatingSystem.h"

#include "figures/Figures.h"
#include "figures/Numbers.h"
#include "figures/PassOver.h"
#include "figures/QueryFallback.h"
#include "figures/Slots.h"
#include "sources/Characters.h"

#include <array>
#include <cmath>

namespace ostrelum::inline figures {
namespace {

using Slot = SystemSlot;

/// "6.1.7601" as "6.1, 7601".
std::string version_and_build(const std::string& version)
{
    return first_characters(version, 3) + ", " + last_characters(version, 4);
}

/// The last statement is the one that only MemoryFigures::TotalAndUsed asks for.
constexpr std::array<Statement, 11> walk{
    [](const Instance& item, QueryForm) { Datos[Slot::Name] = trimmed(item["Caption"]); },
    [](const Instance& item, QueryForm) {
        Datos[Slot::Version] = version_and_build(trimmed(item["Version"]));
    },
    [](const Instance& item, QueryForm) {
        Datos[Slot::ServicePack] = trimmed(item["ServicePackMajorVersion"]);
    },
    [](const Instance& item, QueryForm form) {
        Datos[Slot::Architecture] = form == QueryForm::Full ? trimmed(item["OSArchitecture"]) : "";
    },
    [](const Instance& item, QueryForm) {
        Datos[Slot::SerialNumber] = trimmed(item["SerialNumber"]);
    },
    [](const Instance& item, QueryForm) { Datos[Slot::Language] = trimmed(item["OSLanguage"]); },
    [](const Instance& item, QueryForm) {
        Datos[Slot::RegisteredUser] = trimmed(item["RegisteredUser"]);
    },
    [](const Instance& item, QueryForm) {
        Datos[Slot::ProcessCount] = trimmed(item["NumberOfProcesses"]);
    },
    [](const Instance& item, QueryForm) {
        Datos[Slot::InstallDate] = trimmed(item["InstallDate"]);
    },
    [](const Instance& item, QueryForm) { Num1 = virtual_memory(item); },
    [](const Instance& item, QueryForm) { Num2 = virtual_memory_in_use(item); },
};

} // namespace

bool read_operating_system(MemoryFigures figures)
{
    clear(Datos, Slot::Name, Slot::InstallDate);
    Num1 = Num2 = 0;
    const bool all = read_with_fallback(
        "Select Caption, FreeVirtualMemory, InstallDate, NumberOfProcesses, OSLanguage, "
        "RegisteredUser, SerialNumber, ServicePackMajorVersion, TotalVirtualMemorySize, Version, "
        "OSArchitecture from Win32_OperatingSystem",
        "Select Caption, FreeVirtualMemory, InstallDate, NumberOfProcesses, OSLanguage, "
        "RegisteredUser, SerialNumber, ServicePackMajorVersion, TotalVirtualMemorySize, Version "
        "from Win32_OperatingSystem",
        std::span(walk).first(figures == MemoryFigures::Total ? walk.size() - 1 : walk.size()));
    attempt([] { Datos[Slot::ProductKey] = trimmed(ProductKeyText()); });
    return all;
}

std::int32_t virtual_memory(const Instance& item)
{
    return rounded_down(item["TotalVirtualMemorySize"].number() / 1024);
}

std::int32_t virtual_memory_in_use(const Instance& item)
{
    return Value(Num1 - std::floor(item["FreeVirtualMemory"].number() / 1024)).as_int32();
}

std::string service_pack()
{
    return at_least(Datos[Slot::ServicePack], 1)
               ? FillMark(Trad[Text::ServicePackVersion], "(#)", Datos[Slot::ServicePack])
               : Trad[Text::NoServicePack];
}

std::string process_count(const std::string& count)
{
    return at_least(count, 1) ? count : "";
}

std::string install_date()
{
    std::string date;
    attempt([&] {
        TempStr =
            FillMark(Trad[Text::DateAndTime], "(DDMMYYYY)", WmiDateText(Datos[Slot::InstallDate]));
        date = FillMark(TempStr, "(HHMMSS)", WmiTimeText(Datos[Slot::InstallDate]));
    });
    return date;
}

} // namespace ostrelum::inline figures
