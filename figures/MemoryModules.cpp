#include "figures/MemoryModules.h"

#include "figures/Figures.h"
#include "figures/Numbers.h"
#include "figures/PassOver.h"
#include "figures/Slots.h"

namespace ostrelum::inline figures {
namespace {

using Slot = MemorySlot;

void add_module(const Instance& item)
{
    attempt([&] { Datos[Slot::Type] = trimmed(item["MemoryType"]); });
    attempt([&] { Datos[Slot::FormFactor] = trimmed(item["FormFactor"]); });
    attempt([&] { Datos[Slot::Width] = trimmed(item["TotalWidth"]); });
    attempt([&] { Num1 = Value(Num1 + item["Capacity"].number() / 1024).as_int32(); });
    if (holds([&] { return !trimmed(item["DeviceLocator"]).empty(); }))
        Datos[Slot::ModuleCount] = Value(Value(Datos[Slot::ModuleCount]).as_int32() + 1).text();
}

} // namespace

void read_memory_modules()
{
    clear(Datos, Slot::Type, Slot::FavouredUse);
    Datos[Slot::ModuleCount] = "0";
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
    return at_least(Datos[Slot::ModuleCount], 1) ? Datos[Slot::ModuleCount] : "";
}

std::string memory_width()
{
    return at_least(Datos[Slot::Width], 1) ? Datos[Slot::Width] + " Bits" : "";
}

std::string favoured_use()
{
    if (Datos[Slot::FavouredUse] == "0")
        return Trad[Text::Applications];
    return Datos[Slot::FavouredUse] == "1" ? Trad[Text::SystemCache] : "";
}

} // namespace ostrelum::inline figures
