#include "figures/HardDrives.h"

#include "figures/Figures.h"
#include "figures/PassOver.h"
#include "figures/Slots.h"
#include "figures/Volumes.h"

#include <array>

namespace ostrelum::inline figures {
namespace {

std::string& slot(int index)
{
    return Datos.at(static_cast<std::size_t>(index));
}

void empty_slots(const DriveSlots& slots)
{
    for (const int list : {slots.names, slots.letters, slots.internal_names, slots.file_systems,
                           slots.serials, slots.partitions})
        slot(list).clear();
    for (const int list : {slots.capacities, slots.used, slots.free}) {
        if (list != 0)
            slot(list) = "(";
    }
}

void add_volume_name(std::string& list, const Instance& item)
{
    if (holds([&] { return trimmed(item["VolumeName"]).empty(); }))
        list += Trad[Text::LocalDisk] + " - ";
    else
        add_name(list, item, "VolumeName");
}

void add_sizes(const DriveSlots& slots, const Instance& item)
{
    attempt([&] { Num1 = Value(item["Size"].number() / 1024).whole(); });
    add_capacity(slot(slots.capacities), SizeByDigits(SizeUse::DriveCapacity, Num1));
    attempt([&] { Num2 = Value(item["Freespace"].number() / 1024).whole(); });
    if (slots.free != 0)
        add_share(slot(slots.free), SizeByDigits(SizeUse::DriveFree, Num2), Num2, Num1);
    attempt([&] {
        const std::int32_t used = Value(std::int64_t{Num1} - Num2).whole();
        add_share(slot(slots.used), SizeByDigits(SizeUse::DriveUsed, used), used, Num1);
    });
}

void add_volume(const DriveSlots& slots, const Instance& item)
{
    add_volume_name(slot(slots.names), item);
    add_letter(slot(slots.letters), item, "Caption");
    add_sizes(slots, item);
    add_name(slot(slots.file_systems), item, "FileSystem");
    add_name(slot(slots.serials), item, "VolumeSerialNumber");
}

void add_drive(const DriveSlots& slots, const Instance& item)
{
    if (!hangs_on(item, "IDE", "SCSI"))
        return;
    add_name(slot(slots.internal_names), item, "Caption");
    attempt([&] { slot(slots.partitions) = trimmed(item["Partitions"]); });
}

} // namespace

void read_hard_drives(const DriveSlots& slots)
{
    empty_slots(slots);
    Num1 = Num2 = 0;
    query("Select VolumeName, Caption, Size, Freespace, FileSystem, VolumeSerialNumber from "
          "Win32_LogicalDisk where DriveType = 3");
    each(WmiResult, [&](const Instance& item) { add_volume(slots, item); });
    query("Select InterfaceType, Caption, Partitions from Win32_DiskDrive");
    each(WmiResult, [&](const Instance& item) { add_drive(slots, item); });
}

} // namespace ostrelum::inline figures
