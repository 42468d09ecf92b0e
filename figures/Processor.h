#pragma once

#include "figures/Text.h"

#include <optional>
#include <string>

/// The processor. An empty text is unknown.
namespace ostrelum::inline figures {

/// The slots of Datos that read_processor fills.
enum class ProcessorSlot {
    Name = 1,
    Count, ///< logical processors of the machine
    Manufacturer,
    Type,
    Socket,
    Architecture, ///< a code
    L2Cache,      ///< in KB
    L3Cache,      ///< in KB
};

/// Asks for the first processor. Num1 is its present and Num2 its greatest clock speed, in MHz.
/// What could not be read stays empty or 0.
void read_processor();

/// The row of the clock speed: its title, none where nothing is known, and the value.
struct ClockFigure {
    std::optional<Text> title;
    std::string text;
};

/// Num1 of Num2, or Num2 alone where the processor runs at full speed or its present speed is
/// unknown.
ClockFigure clock_figure();

/// The number of logical processors, from 1 on.
std::string processor_count();
/// What the code of the architecture stands for.
std::string architecture();
/// The size of a cache in a slot.
std::string cache_size(const std::string& slot);

} // namespace ostrelum::inline figures
