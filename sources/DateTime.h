#pragma once

#include "platform/system/Regional.h"

#include <string>
#include <string_view>

namespace ostrelum::inline sources {

/// The date of a service datetime ("yyyymmddHHMMSS" and a tail that is not read) in the regional
/// short form. Throws Failure for text that does not hold digits there, and for a day that no
/// calendar has.
std::string WmiDateText(std::string_view datetime, Regional& regional);

/// The time of day of a service datetime in the regional long form; no time zone is applied. Throws
/// Failure as WmiDateText does.
std::string WmiTimeText(std::string_view datetime, Regional& regional);

} // namespace ostrelum::inline sources
