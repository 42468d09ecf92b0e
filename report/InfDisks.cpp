#include "figures/HardDrives.h"
#include "figures/Numbers.h"
#include "figures/Shared.h"
#include "figures/Volumes.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {
namespace {

/// A list of volumes or drives; unknown where it has none.
std::string list(VolumeSlot slot, std::size_t tail)
{
    return known([&] { return without_tail(Datos[slot], tail); });
}

} // namespace

void InfDisks()
{
    read_hard_drives();

    write_rows({
        {Trad[Text::Name], list(VolumeSlot::Names, NameTail)},
        {Trad[Text::DriveLetter], list(VolumeSlot::Letters, NameTail)},
        {Trad[Text::Capacity], list(VolumeSlot::Capacities, SizeTail)},
        {Trad[Text::SpaceInUse], list(VolumeSlot::Used, SizeTail)},
        {Trad[Text::InternalName], list(VolumeSlot::InternalNames, NameTail)},
        {Trad[Text::FileSystem], list(VolumeSlot::FileSystems, NameTail)},
        {Trad[Text::SerialNumber], list(VolumeSlot::SerialNumbers, NameTail)},
        {Trad[Text::TotalPartitions], at_least(Datos[VolumeSlot::Partitions], 1)
                                          ? Datos[VolumeSlot::Partitions]
                                          : Trad[Text::Unknown]},
    });
}

} // namespace ostrelum::inline report
