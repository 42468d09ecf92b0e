#pragma once

#include "figures/Platform.h"
#include "sources/DateTime.h"
#include "sources/Durations.h"
#include "sources/NumberText.h"
#include "sources/Percent.h"
#include "sources/Processors.h"
#include "sources/ProductKey.h"
#include "sources/Sizes.h"
#include "sources/Texts.h"

#include <cstdint>
#include <string>
#include <string_view>

/// The value rules with the user's own regional forms and the machine's clock and registry.
namespace ostrelum::inline figures {

using sources::ClockText;
using sources::ProductKeyText;
using sources::RealText;
using sources::SizeByDigits;
using sources::UptimeText;
using sources::WmiDateText;
using sources::WmiTimeText;

inline std::string RealText(double number)
{
    return RealText(number, platform.regional->decimal_sign());
}

inline std::string SizeByDigits(SizeUse use, std::int32_t size)
{
    return SizeByDigits(use, size, platform.regional->decimal_sign());
}

inline std::string ClockText(std::int32_t megahertz)
{
    return ClockText(megahertz, platform.regional->decimal_sign());
}

inline std::string WmiDateText(std::string_view datetime)
{
    return WmiDateText(datetime, *platform.regional);
}

inline std::string WmiTimeText(std::string_view datetime)
{
    return WmiTimeText(datetime, *platform.regional);
}

/// The time since system start.
inline std::string UptimeText()
{
    return UptimeText(platform.clock->timeGetTime(), *platform.regional);
}

inline std::string ProductKeyText()
{
    return ProductKeyText(*platform.registry);
}

} // namespace ostrelum::inline figures
