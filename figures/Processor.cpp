#include "figures/Processor.h"

#include "figures/Figures.h"
#include "figures/Numbers.h"
#include "figures/PassOver.h"
#include "figures/QueryFallback.h"
#include "figures/Slots.h"
#include "sources/CodeTable.h"

namespace ostrelum::inline figures {
namespace {

using Slot = ProcessorSlot;

constexpr std::array<Statement, 9> walk{
    [](const Instance& item, QueryForm) { Datos[Slot::Name] = trimmed(item["Name"]); },
    [](const Instance& item, QueryForm) { Num1 = item["CurrentClockSpeed"].as_int32(); },
    [](const Instance& item, QueryForm) { Num2 = item["MaxClockSpeed"].as_int32(); },
    [](const Instance& item, QueryForm) {
        Datos[Slot::Manufacturer] = trimmed(item["Manufacturer"]);
    },
    [](const Instance& item, QueryForm) { Datos[Slot::Type] = trimmed(item["Caption"]); },
    [](const Instance& item, QueryForm) {
        Datos[Slot::Socket] = trimmed(item["SocketDesignation"]);
    },
    [](const Instance& item, QueryForm) {
        Datos[Slot::Architecture] = trimmed(item["Architecture"]);
    },
    [](const Instance& item, QueryForm) { Datos[Slot::L2Cache] = trimmed(item["L2CacheSize"]); },
    [](const Instance& item, QueryForm form) {
        Datos[Slot::L3Cache] = form == QueryForm::Full ? trimmed(item["L3CacheSize"]) : "";
    },
};

/// DMTF CIM schema as the service extends it, Win32_Processor.Architecture: the two kinds of which
/// the page knows the name.
constexpr auto architectures = std::to_array<CodeRow<std::string_view>>({{0, "x86"}, {9, "x64"}});
static_assert(rising(architectures));

std::string megahertz(std::int32_t speed)
{
    return WholeText(speed) + " Mhz";
}

} // namespace

void read_processor()
{
    clear(Datos, Slot::Name, Slot::L3Cache);
    Num1 = Num2 = 0;
    read_with_fallback("Select Architecture, Caption, CurrentClockSpeed, L2CacheSize, L3CacheSize, "
                       "Manufacturer, MaxClockSpeed, Name, SocketDesignation from Win32_Processor",
                       "Select Architecture, Caption, CurrentClockSpeed, L2CacheSize, "
                       "Manufacturer, MaxClockSpeed, Name, SocketDesignation from Win32_Processor",
                       walk);
    attempt([] {
        SysInfo = platform.system_api->GetOstrelum();
        Datos[Slot::Count] = WholeText(SysInfo.dwNumberOfProcessors);
    });
}

ClockFigure clock_figure()
{
    if (Num2 <= 0)
        return {std::nullopt, ""};
    if (Num1 <= 0 || Num1 >= Num2)
        return {Text::Speed, megahertz(Num2)};
    const std::string share = WholeText(PercentFloor(Num1, Num2));
    return {Text::CurrentAndMaximumSpeed,
            megahertz(Num1) + " (" + share + "%) / " + megahertz(Num2) + " (100%)"};
}

std::string processor_count()
{
    return at_least(Datos[Slot::Count], 1) ? Datos[Slot::Count] : "";
}

std::string architecture()
{
    const auto* row = find_code(architectures, Datos[Slot::Architecture]);
    return row ? std::string(row->text) : "";
}

std::string cache_size(const std::string& slot)
{
    std::string size;
    attempt([&] { size = CacheText(slot); });
    return size;
}

} // namespace ostrelum::inline figures
