#pragma once

namespace ostrelum::inline figures {

/// The slot of Datos in which each list about the hard drives grows; 0 for a list that is not made.
struct DriveSlots {
    int names, letters, capacities, used, free, internal_names, file_systems, serials, partitions;
};

/// Asks for the fixed volumes and the internal drives and fills the slots: the lists as
/// figures/Volumes.h makes them, and the partitions of the last internal drive. Num1 and Num2 are
/// left with the size and the free space of the last volume, in KB.
void read_hard_drives(const DriveSlots& slots);

} // namespace ostrelum::inline figures
