#pragma once

#include "figures/PassOver.h"

#include <string>

namespace ostrelum::inline figures {

/// Whether a text reads as a number of at least `least`; other text, and none, does not.
inline bool at_least(const std::string& text, double least)
{
    bool reached = false;
    attempt([&] { reached = Value(text).number() >= least; });
    return reached;
}

} // namespace ostrelum::inline figures
