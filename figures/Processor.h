#pragma once

#include "figures/Text.h"

#include <optional>
#include <string>

/// The processor. An empty text is unknown.
namespace ostrelum::inline figures {

/// Asks for the first processor: Datos 1 is its name, 2 the number of logical processors of the
/// machine, 3 its maker, 4 its type, 5 its socket, 6 the code of its architecture, 7 and 8 the KB
/// of its L2 and L3 caches. Num1 is its present and Num2 its greatest clock speed, in MHz. What the
/// service does not tell stays empty or 0.
void read_processor();

/// How the clock speed is told: the row's title, none where nothing is known, and the value.
struct ClockFigure {
    std::optional<Text> title;
    std::string text;
};

/// Num1 of Num2, or Num2 alone where the processor runs at full speed or does not tell.
ClockFigure clock_figure();

/// Datos 2, from 1 on.
std::string processor_count();
/// What the code in Datos 6 stands for.
std::string architecture();
/// The size of a cache in a slot.
std::string cache_size(const std::string& slot);

} // namespace ostrelum::inline figures
