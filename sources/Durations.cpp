#include "sources/Durations.h"

#include "platform/system/Failure.h"
#include "sources/NumberText.h"

namespace ostrelum::inline sources {

std::string UptimeText(std::uint64_t milliseconds, Regional& regional)
{
    constexpr std::uint64_t day_seconds = 24 * 60 * 60;
    constexpr std::uint64_t last_day = 28;
    const std::uint64_t seconds = milliseconds / 1000;
    if (seconds / day_seconds > last_day)
        return "";
    const int today = static_cast<int>(seconds % day_seconds);
    return regional.long_time({today / 3600, today / 60 % 60, today % 60});
}

std::string MinutesText(std::int32_t minutes)
{
    constexpr std::int32_t hours_limit = 32768;
    if (minutes < 0 || minutes / 60 >= hours_limit)
        throw Failure("no number of minutes that can be shown");
    return two_digits(minutes / 60 % 24) + ":" + two_digits(minutes % 60);
}

} // namespace ostrelum::inline sources
