#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace ostrelum::linux_platform {

/// The day on which a kernel or a driver was built, by the line in which it names itself:
/// "(2024-11-22)", or as date writes it, "Fri Aug 30 12:02:04 UTC 2024". Nothing for a line without
/// a day that the calendar has.
std::optional<std::chrono::year_month_day> build_date(std::string_view line);

} // namespace ostrelum::linux_platform
