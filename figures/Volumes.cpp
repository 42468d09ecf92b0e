#include "figures/Volumes.h"

#include "figures/Figures.h"
#include "figures/Slots.h"

namespace ostrelum::inline figures {

void begin_lists()
{
    clear(Datos, VolumeSlot::Names, VolumeSlot::Partitions);
    for (const VolumeSlot sizes : {VolumeSlot::Capacities, VolumeSlot::Used, VolumeSlot::Free})
        Datos[sizes] = "(";
}

void add_name(std::string& list, const Instance& item, const char* property)
{
    add_entry(list, [&] { return trimmed(item[property]) + " - "; });
}

void add_letter(std::string& list, const Instance& item, const char* property)
{
    add_entry(list, [&] { return "(" + trimmed(item[property]) + ") - "; });
}

void add_capacity(std::string& list, const std::string& size)
{
    if (!size.empty())
        list += size + ") - (";
}

void add_share(std::string& list, const std::string& size, std::int32_t part, std::int32_t whole)
{
    if (!size.empty())
        list += size + " - ";
    add_entry(list, [&] { return WholeText(PercentSingle(part, whole)) + "%) - ("; });
}

bool hangs_on(const Instance& item, std::string_view bus, std::string_view other_bus)
{
    return holds([&] {
        const Value& type = item["InterfaceType"];
        return !type.is_null() && (type.text() == bus || type.text() == other_bus);
    });
}

std::string without_tail(const std::string& list, std::size_t tail)
{
    if (list.size() < tail)
        throw Failure("a list without an entry");
    return list.substr(0, list.size() - tail);
}

} // namespace ostrelum::inline figures
