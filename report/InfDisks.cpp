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
        {Trad[Text::Name], list(VolumeSlot::Names, name_tail)},
        {Trad[Text::DriveLetter], list(VolumeSlot::Letters, name_tail)},
        {Trad[Text::Capacity], list(VolumeSlot::Capacities, size_tail)},
        {Trad[Text::SpaceInUse], list(VolumeSlot::Used, size_tail)},
        {Trad[Text::InternalName], list(VolumeSlot::InternalNames, name_tail)},
        {Trad[Text::FileSystem], list(VolumeSlot::FileSystems, name_tail)},
        {Trad[Text::SerialNumber], list(VolumeSlot::SerialNumbers, name_tail)},
        {Trad[Text::TotalPartitions], at_least(Datos[VolumeSlot::Partitions], 1)
                                          ? Datos[VolumeSlot::Partitions]
                                          : Trad[Text::Unknown]},
    });
}

} // namespace ostrelum::inline report
