#include "figures/DisplayFigures.h"

#include "figures/Figures.h"
#include "figures/PassOver.h"
#include "figures/Slots.h"

namespace ostrelum::inline figures {
namespace {

/// A property that tells something: neither 0 nor empty. One that is null fails to be tested, and
/// so counts as telling.
bool tells(const Instance& item, const char* property)
{
    return holds([&] { return item[property].number() != 0 && !trimmed(item[property]).empty(); });
}

void fill(std::string& into, const std::string& form, const char* mark,
          std::invocable auto make_text)
{
    attempt([&] { into = FillMark(form, mark, make_text()); });
}

/// Each mark is filled by its own statement, so one that fails leaves what the one before it made.
void read_mode(const Instance& item)
{
    if (!tells(item, "CurrentHorizontalResolution") || !tells(item, "CurrentVerticalResolution") ||
        !tells(item, "CurrentBitsPerPixel") || !tells(item, "CurrentRefreshRate"))
        return;
    fill(TempStr, Trad[Text::DisplayMode], "(1)", [&] {
        return trimmed(item["CurrentHorizontalResolution"]) + " x " +
               trimmed(item["CurrentVerticalResolution"]);
    });
    fill(TempStr, TempStr, "(2)", [&] { return trimmed(item["CurrentBitsPerPixel"]); });
    fill(Datos[3], TempStr, "(3)", [&] { return trimmed(item["CurrentRefreshRate"]); });
}

void read_card(const Instance& item)
{
    read_mode(item);
    attempt([&] { Datos[4] = trimmed(item["MinRefreshRate"]); });
    attempt([&] { Datos[5] = trimmed(item["MaxRefreshRate"]); });
    attempt([&] { Datos[6] = trimmed(item["Name"]); });
    attempt([&] { Datos[7] = trimmed(item["AdapterDACType"]); });
    attempt([&] { Datos[8] = trimmed(item["InstalledDisplayDrivers"]); });
    attempt([&] { Datos[9] = trimmed(item["DriverVersion"]); });
    attempt([&] { Datos[10] = trimmed(item["DriverDate"]); });
    attempt([&] { Num1 = rounded_down(item["AdapterRAM"].number() / 1024 / 1024); });
}

double rate(int slot)
{
    return Value(Datos.at(static_cast<std::size_t>(slot))).number();
}

std::string hertz(const std::string& text)
{
    return FillMark(Trad[Text::Hertz], "(#)", text);
}

} // namespace

void read_display()
{
    clear(Datos, 1, 10);
    TempStr.clear();
    Num1 = 0;
    query("Select Name, MonitorManufacturer from Win32_DesktopMonitor");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[1] = trimmed(item["Name"]); });
        attempt([&] { Datos[2] = trimmed(item["MonitorManufacturer"]); });
    });
    query("Select CurrentHorizontalResolution, CurrentVerticalResolution, CurrentBitsPerPixel, "
          "CurrentRefreshRate, MinRefreshRate, MaxRefreshRate, Name, AdapterDACType, "
          "InstalledDisplayDrivers, DriverVersion, DriverDate, AdapterRAM from "
          "Win32_VideoController");
    first(WmiResult, read_card);
}

RefreshLimits refresh_limits()
{
    for (std::string* limit : {&Datos[4], &Datos[5]}) {
        if (limit->empty())
            *limit = "0";
    }
    if (holds([] { return rate(4) == 0 && rate(5) != 0; }))
        return {Text::MaximumRefreshRate, Text::MaximumRefreshRateHint, hertz(Datos[5])};
    if (holds([] { return rate(4) != 0 && rate(5) == 0; }))
        return {Text::MinimumRefreshRate, Text::MinimumRefreshRateHint, hertz(Datos[4])};
    if (holds([] { return rate(4) != 0 && Datos[4] != Datos[5]; }))
        return {Text::RefreshRateRange, Text::RefreshRateRangeHint,
                hertz(Datos[4]) + " - " + hertz(Datos[5])};
    if (holds([] { return rate(4) == 0; }))
        return {Text::RefreshRateRange, Text::RefreshRateRangeHint, ""};
    return {Text::MaximumRefreshRate, Text::MaximumRefreshRateHint, hertz(Datos[5])};
}

std::string graphics_memory()
{
    return Num1 == 0 ? "" : SizeWhole(Num1);
}

std::string driver_date()
{
    return Datos[10].empty() ? "" : WmiDateText(Datos[10]);
}

} // namespace ostrelum::inline figures
