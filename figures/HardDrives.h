#pragma once

namespace ostrelum::inline figures {

/// Asks for the fixed volumes and the internal drives and fills all of VolumeSlot. Num1 and Num2
/// are left with the size and the free space of the last volume, in KB.
void read_hard_drives();

} // namespace ostrelum::inline figures
