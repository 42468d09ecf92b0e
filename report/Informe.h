#pragma once

#include <cstdint>
#include <string>

/// The pipeline of a report: heads, twelve stages, feet.
namespace ostrelum::inline report {

/// The clock's milliseconds when the report began.
inline std::uint64_t ReportStart = 0;

/// Makes the four documents, one stage after the other, and returns when they are finished.
void InfStart();

} // namespace ostrelum::inline report
