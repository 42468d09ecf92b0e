#include "figures/DisplayFigures.h"

#include "figures/Figures.h"
#include "figures/PassOver.h"
#include "figures/Slots.h"

#include <algorithm>

namespace ostrelum::inline figures {
namespace {

using Slot = DisplaySlot;

/// Whether the mode's four figures are neither 0 nor empty. A null fails its test, which counts as
/// held where half of a mode is shown.
bool has_mode(const Instance& item, HalfKnownMode half)
{
    constexpr const char* figures[] = {"CurrentHorizontalResolution", "CurrentVerticalResolution",
                                       "CurrentBitsPerPixel", "CurrentRefreshRate"};
    return std::ranges::all_of(figures, [&](const char* figure) {
        bool set = half == HalfKnownMode::Shown;
        attempt([&] { set = item[figure].number() != 0 && !trimmed(item[figure]).empty(); });
        return set;
    });
}

void fill(std::string& into, const std::string& form, const char* mark,
          std::invocable auto make_text)
{
    attempt([&] { into = FillMark(form, mark, make_text()); });
}

/// Each mark is filled by its own statement, so one that fails leaves what the one before it made.
void read_mode(const Instance& item)
{
    fill(TempStr, Trad[Text::DisplayMode], "(1)", [&] {
        return trimmed(item["CurrentHorizontalResolution"]) + " x " +
               trimmed(item["CurrentVerticalResolution"]);
    });
    fill(TempStr, TempStr, "(2)", [&] { return trimmed(item["CurrentBitsPerPixel"]); });
    fill(Datos[Slot::Mode], TempStr, "(3)", [&] { return trimmed(item["CurrentRefreshRate"]); });
}

void read_card(const Instance& item)
{
    attempt([&] { Datos[Slot::MinimumRate] = trimmed(item["MinRefreshRate"]); });
    attempt([&] { Datos[Slot::MaximumRate] = trimmed(item["MaxRefreshRate"]); });
    attempt([&] { Datos[Slot::CardName] = trimmed(item["Name"]); });
    attempt([&] { Datos[Slot::MemoryType] = trimmed(item["AdapterDACType"]); });
    attempt([&] { Datos[Slot::Drivers] = trimmed(item["InstalledDisplayDrivers"]); });
    attempt([&] { Datos[Slot::DriverVersion] = trimmed(item["DriverVersion"]); });
    attempt([&] { Datos[Slot::DriverDate] = trimmed(item["DriverDate"]); });
    attempt([&] { Num1 = rounded_down(item["AdapterRAM"].number() / 1024 / 1024); });
}

double rate(const std::string& limit)
{
    return Value(limit).number();
}

std::string hertz(const std::string& text)
{
    return FillMark(Trad[Text::Hertz], "(#)", text);
}

} // namespace

void read_display(HalfKnownMode half)
{
    clear(Datos, Slot::MonitorName, Slot::DriverDate);
    TempStr.clear();
    Num1 = 0;
    query("Select Name, MonitorManufacturer from Win32_DesktopMonitor");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[Slot::MonitorName] = trimmed(item["Name"]); });
        attempt([&] { Datos[Slot::MonitorManufacturer] = trimmed(item["MonitorManufacturer"]); });
    });
    query("Select CurrentHorizontalResolution, CurrentVerticalResolution, CurrentBitsPerPixel, "
          "CurrentRefreshRate, MinRefreshRate, MaxRefreshRate, Name, AdapterDACType, "
          "InstalledDisplayDrivers, DriverVersion, DriverDate, AdapterRAM from "
          "Win32_VideoController");
    first(WmiResult, [&](const Instance& item) {
        if (has_mode(item, half))
            read_mode(item);
        read_card(item);
    });
}

RefreshLimits refresh_limits()
{
    std::string& minimum = Datos[Slot::MinimumRate];
    std::string& maximum = Datos[Slot::MaximumRate];
    for (std::string* limit : {&minimum, &maximum}) {
        if (limit->empty())
            *limit = "0";
    }
    if (holds([&] { return rate(minimum) == 0 && rate(maximum) != 0; }))
        return {Text::MaximumRefreshRate, Text::MaximumRefreshRateHint, hertz(maximum)};
    if (holds([&] { return rate(minimum) != 0 && rate(maximum) == 0; }))
        return {Text::MinimumRefreshRate, Text::MinimumRefreshRateHint, hertz(minimum)};
    if (holds([&] { return rate(minimum) != 0 && minimum != maximum; }))
        return {Text::RefreshRateRange, Text::RefreshRateRangeHint,
                hertz(minimum) + " - " + hertz(maximum)};
    if (holds([&] { return rate(minimum) == 0; }))
        return {Text::RefreshRateRange, Text::RefreshRateRangeHint, ""};
    return {Text::MaximumRefreshRate, Text::MaximumRefreshRateHint, hertz(maximum)};
}

std::string graphics_memory()
{
    return Num1 == 0 ? "" : SizeWhole(Num1);
}

std::string driver_date()
{
    return Datos[Slot::DriverDate].empty() ? "" : WmiDateText(Datos[Slot::DriverDate]);
}

} // namespace ostrelum::inline figures
