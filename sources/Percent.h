#pragma once

#include <cstdint>
#include <string>

/// What percentage a part is of a whole. Each figure has its own way to round. All throw Failure
/// for a whole of 0.
namespace ostrelum::inline sources {

/// Cut toward zero: 2 of 3 is 66.
std::int64_t PercentCut(std::int32_t part, std::int32_t whole);

/// To nearest, ties to even: 1 of 8 is 12. Throws Failure if a hundred times the part does not fit
/// 32 bits, from 21474837 on.
std::int64_t PercentRound(std::int32_t part, std::int32_t whole);

/// To nearest, ties to even, of the part in single precision; no part is too large.
std::int64_t PercentSingle(std::int32_t part, std::int32_t whole);

/// Rounded down.
std::int64_t PercentFloor(std::int32_t part, std::int32_t whole);

/// Amounts of MB, such as "1024 MB (25%) / 4096 MB (100%)".
std::string UsedOfTotal(std::int32_t part, std::int32_t whole);

} // namespace ostrelum::inline sources
