#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

/// Datetimes as the management service writes them (DMTF DSP0004): "yyyymmddHHMMSS.mmmmmm+UUU",
/// local time and the minutes by which it is ahead of UTC.
namespace ostrelum::linux_platform {

/// Midnight of a day, without a time zone. Nothing for a day that no calendar has and for years
/// outside 0 to 9999.
std::optional<std::string> cim_datetime(std::chrono::year_month_day day);

/// A moment in seconds since 1970, in the local time that is `utc_offset` minutes ahead of UTC.
/// Nothing for a moment whose local year is outside 0 to 9999, and for an offset of 1000 minutes
/// and more.
std::optional<std::string> cim_datetime(std::int64_t moment, int utc_offset);

} // namespace ostrelum::linux_platform
