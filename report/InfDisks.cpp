#include "figures/HardDrives.h"
#include "figures/Numbers.h"
#include "figures/Shared.h"
#include "figures/Volumes.h"
#include "report/Body.h"
#include "report/Stages.h"

namespace ostrelum::inline report {
namespace {

/// A list of volumes or drives; unknown where it has none.
std::string list(std::size_t slot, std::size_t tail)
{
    return known([&] { return without_tail(Datos.at(slot), tail); });
}

} // namespace

void InfDisks()
{
    read_hard_drives({.names = 1,
                      .letters = 2,
                      .capacities = 3,
                      .used = 4,
                      .free = 0,
                      .internal_names = 5,
                      .file_systems = 6,
                      .serials = 7,
                      .partitions = 8});

    write_rows({
        {Trad[Text::Name], list(1, NameTail)},
        {Trad[Text::DriveLetter], list(2, NameTail)},
        {Trad[Text::Capacity], list(3, SizeTail)},
        {Trad[Text::SpaceInUse], list(4, SizeTail)},
        {Trad[Text::InternalName], list(5, NameTail)},
        {Trad[Text::FileSystem], list(6, NameTail)},
        {Trad[Text::SerialNumber], list(7, NameTail)},
        {Trad[Text::TotalPartitions], at_least(Datos[8], 1) ? Datos[8] : Trad[Text::Unknown]},
    });
}

} // namespace ostrelum::inline report
