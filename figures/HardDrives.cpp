#include "figures/HardDrives.h"

#include "figures/Figures.h"
#include "figures/PassOver.h"
#include "figures/Slots.h"
#include "figures/Volumes.h"

namespace ostrelum::inline figures {
namespace {

using Slot = VolumeSlot;

void add_volume_name(std::string& list, const Instance& item)
{
    if (holds([&] { return trimmed(item["VolumeName"]).empty(); }))
        list += Trad[Text::LocalDisk] + " - ";
    else
        add_name(list, item, "VolumeName");
}

void add_sizes(const Instance& item)
{
    attempt([&] { Num1 = Value(item["Size"].number() / 1024).as_int32(); });
    add_capacity(Datos[Slot::Capacities], SizeByDigits(SizeUse::DriveCapacity, Num1));
    attempt([&] { Num2 = Value(item["Freespace"].number() / 1024).as_int32(); });
    add_share(Datos[Slot::Free], SizeByDigits(SizeUse::DriveFree, Num2), Num2, Num1);
    attempt([&] {
        const std::int32_t used = Value(std::int64_t{Num1} - Num2).as_int32();
        add_share(Datos[Slot::Used], SizeByDigits(SizeUse::DriveUsed, used), used, Num1);
    });
}

void add_volume(const Instance& item)
{
    add_volume_name(Datos[Slot::Names], item);
    add_letter(Datos[Slot::Letters], item, "Caption");
    add_sizes(item);
    add_name(Datos[Slot::FileSystems], item, "FileSystem");
    add_name(Datos[Slot::SerialNumbers], item, "VolumeSerialNumber");
}

void add_drive(const Instance& item)
{
    if (!hangs_on(item, "IDE", "SCSI"))
        return;
    add_name(Datos[Slot::InternalNames], item, "Caption");
    attempt([&] { Datos[Slot::Partitions] = trimmed(item["Partitions"]); });
}

} // namespace

void read_hard_drives()
{
    begin_lists();
    Num1 = Num2 = 0;
    query("Select VolumeName, Caption, Size, Freespace, FileSystem, VolumeSerialNumber from "
          "Win32_LogicalDisk where DriveType = 3");
    each(WmiResult, add_volume);
    query("Select InterfaceType, Caption, Partitions from Win32_DiskDrive");
    each(WmiResult, add_drive);
}

} // namespace ostrelum::inline figures
