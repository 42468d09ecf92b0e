#include "figures/Figures.h"
#include "figures/OtherHardware.h"
#include "frame/Page.h"
#include "sections/Sections.h"

#include <cmath>

namespace ostrelum::inline sections {
namespace {

enum class SummarySlot { GraphicsCard = 1, System, Motherboard };

/// A number of bytes in whole MB.
double megabytes(const Instance& item, const char* property)
{
    return std::floor(item[property].number() / 1024 / 1024);
}

/// Num1 becomes the sum over all objects, each rounded down on its own.
void add_up_megabytes(const char* property)
{
    Num1 = 0;
    each(WmiResult, [&](const Instance& item) {
        attempt([&] { Num1 = Value(Num1 + megabytes(item, property)).as_int32(); });
    });
}

/// Num1 in MHz, on Num2 processors.
std::string speed_text()
{
    if (Num1 <= 0)
        return "";
    if (Num2 > 1)
        return ClockText(Num1) + " (" +
               FillMark(Trad[Text::ProcessorCount], "(#)", WholeText(Num2)) + ")";
    const std::string megahertz = WholeText(Num1);
    return megahertz.size() == 3 ? megahertz + " Mhz" : ClockText(Num1);
}

void show_speed()
{
    Num1 = Num2 = 0;
    set_title(3, Trad[Text::ProcessorSpeed] + " ");
    query("Select MaxClockSpeed from Win32_Processor");
    first(WmiResult,
          [](const Instance& item) { attempt([&] { Num1 = item["MaxClockSpeed"].as_int32(); }); });
    attempt([] {
        SysInfo = platform.system_api->GetOstrelum();
        Num2 = Value(SysInfo.dwNumberOfProcessors).as_int32();
    });
    set_value(3, speed_text);
}

void show_memory()
{
    set_title(4, Trad[Text::Ram] + ": ");
    query("Select Capacity from Win32_PhysicalMemory");
    add_up_megabytes("Capacity");
    set_value(4, Num1 == 0 ? "" : SizeWhole(Num1));
}

/// The card's name is kept for a row further down.
void show_graphics_memory()
{
    Num1 = 0;
    Datos[SummarySlot::GraphicsCard].clear();
    set_title(5, Trad[Text::GraphicsCardMemory] + " ");
    query("Select AdapterRAM, Name from Win32_VideoController");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Num1 = Value(megabytes(item, "AdapterRAM")).as_int32(); });
        attempt([&] { Datos[SummarySlot::GraphicsCard] = trimmed(item["Name"]); });
    });
    set_value(5, Num1 == 0 ? "" : SizeWhole(Num1));
}

std::string free_space_text()
{
    if (Num1 == 0)
        return "";
    const std::string usual = SizeByDigits(SizeUse::SummaryFree, Num1);
    return usual.empty() ? SizeByDigits(SizeUse::SummaryFreeBeyond, Num1) : usual;
}

void show_free_space()
{
    set_title(6, Trad[Text::TotalFreeSpace] + " ");
    query("Select Freespace from Win32_LogicalDisk where DriveType = 3");
    add_up_megabytes("Freespace");
    set_value(6, free_space_text);
}

void show_system()
{
    Datos[SummarySlot::System].clear();
    set_title(10, Trad[Text::OperatingSystem] + ": ");
    query("Select Caption from Win32_OperatingSystem");
    first(WmiResult, [](const Instance& item) {
        attempt([&] { Datos[SummarySlot::System] = trimmed(item["Caption"]); });
    });
    set_value(10, Datos[SummarySlot::System]);
}

void show_mainboard()
{
    Datos[SummarySlot::Motherboard].clear();
    set_title(12, Trad[Text::Motherboard] + " ");
    attempt([] { Datos[SummarySlot::Motherboard] = mainboard_name(); });
    set_value(12, Datos[SummarySlot::Motherboard]);
}

} // namespace

void SecSummary()
{
    if (F1.Seccion != SummaryPage)
        hide(F1.LNoDrive, F1.Iaviso, F1.Laviso, F1.Line1);
    enter_section(SummaryPage);
    show_title();

    set_heading(1, Trad[Text::MainFeatures]);
    empty_rows(2, 2);
    show_speed();
    show_memory();
    show_graphics_memory();
    show_free_space();
    clear_title_tooltips(3, 5);
    empty_rows(7, 7);
    set_heading(8, Trad[Text::OtherFeatures]);
    empty_rows(9, 9);
    show_system();
    set_title(11, Trad[Text::GraphicsCard] + ": ");
    set_value(11, Datos[SummarySlot::GraphicsCard]);
    show_mainboard();
}

} // namespace ostrelum::inline sections
