#pragma once

#include <string>

/// The rows about the battery that are written anew while the page is open.
namespace ostrelum::inline sections {

/// Writes the values of row 10, voltage, row 11, charge, and row 12, time left, from texts that
/// hold millivolts, a percentage and minutes; an empty one is unknown. A text that is no whole
/// number, and more minutes than a time can hold, leave their row as it was.
void set_battery_values(const std::string& millivolts, const std::string& percent,
                        const std::string& minutes);

} // namespace ostrelum::inline sections
