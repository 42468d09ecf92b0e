#include "platform/linux/formats/CimDateTime.h"

#include <algorithm>
#include <cstdlib>

namespace ostrelum::linux_platform {
namespace {

namespace time = std::chrono;

std::string digits(std::int64_t number, std::size_t width)
{
    const std::string text = std::to_string(number);
    return std::string(width - std::min(width, text.size()), '0') + text;
}

std::optional<std::string> written(time::year_month_day day, time::hh_mm_ss<time::seconds> clock,
                                   int utc_offset)
{
    const int year = static_cast<int>(day.year());
    if (!day.ok() || year < 0 || year > 9999 || std::abs(utc_offset) > 999)
        return std::nullopt;
    return digits(year, 4) + digits(static_cast<unsigned>(day.month()), 2) +
           digits(static_cast<unsigned>(day.day()), 2) + digits(clock.hours().count(), 2) +
           digits(clock.minutes().count(), 2) + digits(clock.seconds().count(), 2) + ".000000" +
           (utc_offset < 0 ? "-" : "+") + digits(std::abs(utc_offset), 3);
}

} // namespace

std::optional<std::string> cim_datetime(time::year_month_day day)
{
    return written(day, time::hh_mm_ss(time::seconds(0)), 0);
}

std::optional<std::string> cim_datetime(std::int64_t moment, int utc_offset)
{
    // Beyond these years the calendar's own arithmetic would overflow.
    constexpr std::int64_t ten_thousand_years = 315'569'520'000;
    if (moment < -ten_thousand_years || moment > ten_thousand_years)
        return std::nullopt;
    const time::sys_seconds local{time::seconds(moment) + time::minutes(utc_offset)};
    const auto day = time::floor<time::days>(local);
    return written(day, time::hh_mm_ss(local - day), utc_offset);
}

} // namespace ostrelum::linux_platform
