#include "figures/MemoryModules.h"

#include "figures/Figures.h"
#include "figures/Numbers.h"
#include "figures/PassOver.h"
#include "figures/Slots.h"

namespace ostrelum::inline figures {
namespace {

void add_module(const Instance& item)
{
    attempt([&] { Datos[1] = trimmed(item["MemoryType"]); });
    attempt([&] { Datos[2] = trimmed(item["FormFactor"]); });
    attempt([&] { Datos[4] = trimmed(item["TotalWidth"]); });
    attempt([&] { Num1 = Value(Num1 + item["Capacity"].number() / 1024).whole(); });
    if (holds([&] { return !trimmed(item["DeviceLocator"]).empty(); }))
        Datos[3] = Value(Value(Datos[3]).whole() + 1).text();
}

} // namespace

void read_memory_modules()
{
    clear(Datos, 1, 5);
    Datos[3] = "0";
    Num1 = 0;
    query("Select MemoryType, FormFactor, Capacity, DeviceLocator, TotalWidth from "
          "Win32_PhysicalMemory");
    each(WmiResult, add_module);
}

std::string total_memory()
{
    return Num1 <= 0 ? "" : SizeWhole(Num1 / 1024);
}

std::string modules_installed()
{
    return at_least(Datos[3], 1) ? Datos[3] : "";
}

std::string memory_width()
{
    return at_least(Datos[4], 1) ? Datos[4] + " Bits" : "";
}

std::string favoured_use()
{
    if (Datos[5] == "0")
        return Trad[Text::Applications];
    return Datos[5] == "1" ? Trad[Text::SystemCache] : "";
}

} // namespace ostrelum::inline figures
