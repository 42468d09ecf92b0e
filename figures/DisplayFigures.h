#pragma once

#include "figures/Text.h"

#include <string>

/// The monitor, the graphics card and the mode they run in. An empty text is unknown.
namespace ostrelum::inline figures {

/// The slots of Datos that read_display fills.
enum class DisplaySlot {
    MonitorName = 1,
    MonitorManufacturer,
    Mode,
    MinimumRate, ///< in Hz
    MaximumRate, ///< in Hz
    CardName,
    MemoryType,
    Drivers,
    DriverVersion,
    DriverDate, ///< a datetime of the service
};

/// What becomes of a mode of which a figure is null. The colours' depth alone can be missing in one
/// that is shown: its mark then stands in its place.
enum class HalfKnownMode { Shown, Empty };

/// Asks for monitors and cards and reads the first of each. Num1 is the card's memory in MB.
void read_display(HalfKnownMode half);

/// The row of the refresh limits: its title, the title's tooltip, and the value.
struct RefreshLimits {
    Text title;
    Text explanation;
    std::string text;
};

/// The least and the greatest rate; an empty slot becomes "0" and counts as 0.
RefreshLimits refresh_limits();

/// Num1 as a size.
std::string graphics_memory();

/// The driver's date; empty for an empty slot. Throws Failure where the slot holds no date.
std::string driver_date();

} // namespace ostrelum::inline figures
