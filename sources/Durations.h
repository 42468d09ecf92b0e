#pragma once

#include "platform/system/Regional.h"

#include <cstdint>
#include <string>

namespace ostrelum::inline sources {

/// Hours, minutes and seconds of the time that a system has been up, in the regional long time
/// form; the days are left out. Empty from 29 days on.
std::string UptimeText(std::uint64_t milliseconds, Regional& regional);

/// Minutes as "hours:minutes", two digits each; after 23:59 it begins anew. Throws Failure for less
/// than 0 and for 1966080 and more, whose hours do not fit 16 bits: batteries give such numbers for
/// a time that they do not know.
std::string MinutesText(std::int32_t minutes);

} // namespace ostrelum::inline sources
