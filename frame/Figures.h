#pragma once

#include "frame/Platform.h"
#include "sources/DateTime.h"

#include <string>
#include <string_view>

/// The value rules with the user's own regional forms and the machine's clock.
namespace ostrelum {

inline std::string WmiDateText(std::string_view datetime)
{
    return WmiDateText(datetime, *platform.regional);
}

inline std::string WmiTimeText(std::string_view datetime)
{
    return WmiTimeText(datetime, *platform.regional);
}

} // namespace ostrelum
