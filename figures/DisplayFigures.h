#pragma once

#include "figures/Text.h"

#include <string>

/// The monitor, the graphics card and the mode they run in. An empty text is unknown.
namespace ostrelum::inline figures {

/// Asks for both and takes in the first of each. Datos 1 and 2 are the monitor's name and maker, 3
/// the mode, 4 and 5 the least and the greatest refresh rate; 6 to 10 the card's name, kind of
/// memory, drivers, driver version and driver date; Num1 is the card's memory in MB.
void read_display();

/// How the refresh limits are told: the row's title, what explains the title, and the value.
struct RefreshLimits {
    Text title;
    Text explanation;
    std::string text;
};

/// The limits that Datos 4 and 5 hold; an empty slot becomes "0" and counts as 0.
RefreshLimits refresh_limits();

/// Num1 as a size.
std::string graphics_memory();

/// Datos 10 as a date. Throws Failure where it holds none.
std::string driver_date();

} // namespace ostrelum::inline figures
