#include "figures/OperatingSystem.h"
#include "frame/Page.h"
#include "frame/PageTable.h"
#include "sections/BatteryRows.h"
#include "sections/MemoryRows.h"
#include "sections/Sections.h"
#include "sections/SystemRows.h"

/// The figures that change while their page is open, once a second. A tick asks for no more than
/// what changes, and writes the values in place.
namespace ostrelum::inline sections {
namespace {

enum class BatterySlot { Voltage = 1, Charge, Minutes };

void stop()
{
    F1.Timer1.Enabled = false;
}

void Timer1_Timer()
{
    const PageEntry* page = page_on_show();
    if (page && page->tick)
        page->tick();
    else
        stop();
}

constexpr Handler handlers[] = {OSTRELUM_ON(Timer1_Timer)};

} // namespace

const HandlerTable live_refresh_handlers{handlers};

void refresh_user()
{
    const std::string time = usage_time();
    if (time.empty())
        stop();
    else
        set_value(9, time);
    F1.L(9).ToolTipText = F1.L(9).Caption;
}

void refresh_system()
{
    TempStr.clear();
    Num1 = Num2 = 0;
    query("Select FreeVirtualMemory, NumberOfProcesses, TotalVirtualMemorySize from "
          "Win32_OperatingSystem");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { TempStr = item["NumberOfProcesses"].text(); });
        attempt([&] { Num1 = virtual_memory(item); });
        attempt([&] { Num2 = virtual_memory_in_use(item); });
    });
    place_value(9);
    set_value(9, process_count(TempStr));
    set_title(11, Trad[Text::VirtualMemoryInUse] + " ");
    set_virtual_memory_row();
}

void refresh_memory()
{
    Num1 = ram_total;
    Num2 = 0;
    query("Select FreePhysicalMemory from Win32_OperatingSystem");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Num2 = item["FreePhysicalMemory"].as_int32(); });
    });
    place_value(4);
    place_value(5);
    set_memory_values();
}

void refresh_battery()
{
    clear(Datos, BatterySlot::Voltage, BatterySlot::Minutes);
    query("Select DesignVoltage, EstimatedChargeRemaining, EstimatedRunTime from Win32_Battery");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[BatterySlot::Voltage] = trimmed(item["DesignVoltage"]); });
        attempt([&] { Datos[BatterySlot::Charge] = trimmed(item["EstimatedChargeRemaining"]); });
        attempt([&] { Datos[BatterySlot::Minutes] = trimmed(item["EstimatedRunTime"]); });
    });
    if (Datos[BatterySlot::Voltage].empty() && Datos[BatterySlot::Charge].empty() &&
        Datos[BatterySlot::Minutes].empty())
        stop();
    set_battery_values(Datos[BatterySlot::Voltage], Datos[BatterySlot::Charge],
                       Datos[BatterySlot::Minutes]);
}

} // namespace ostrelum::inline sections
