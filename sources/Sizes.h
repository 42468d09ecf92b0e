#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Sizes as text. All units are binary, and the unit follows from the number of digits, not from
/// the magnitude: people compare these figures with the ones on older pages and papers.
namespace ostrelum::inline sources {

/// A whole number of MB: " MB" up to three digits, from four digits on whole " GB", rounded down.
/// So 1000 is "0 GB".
std::string SizeWhole(std::int32_t megabytes);

/// What a size tells, and in what unit it comes.
enum class SizeUse {
    SummaryFree,       ///< MB
    SummaryFreeBeyond, ///< MB; the digit counts that SummaryFree has no form for
    DriveCapacity,     ///< KB
    DriveFree,         ///< KB
    DriveUsed,         ///< KB
    RemovableCapacity, ///< KB
    RemovableFree,     ///< KB
    RemovableUsed,     ///< KB
    DiscCapacity,      ///< KB
};

/// A size in the form that its use has for that number of digits; a minus sign counts as a digit.
/// Fractions are cut, not rounded. Empty where the use has no form for it.
std::string SizeByDigits(SizeUse use, std::int32_t size, std::string_view decimal_sign);

/// KB as whole MB, rounded down, without a unit.
std::string WholeMegabytes(std::int32_t kilobytes);

} // namespace ostrelum::inline sources
