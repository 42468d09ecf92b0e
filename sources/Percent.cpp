#include "sources/Percent.h"

#include "sources/NumberText.h"
#include "sources/Value.h"

#include <cmath>

namespace ostrelum::inline sources {
namespace {

std::int32_t divisor(std::int32_t whole)
{
    if (whole == 0)
        throw Failure("a part of nothing");
    return whole;
}

// The rounding mode is never changed, so nearbyint rounds halves to the even neighbour.
std::int64_t to_even(double percent)
{
    return static_cast<std::int64_t>(std::nearbyint(percent));
}

} // namespace

std::int64_t PercentCut(std::int32_t part, std::int32_t whole)
{
    return std::int64_t{part} * 100 / divisor(whole);
}

std::int64_t PercentRound(std::int32_t part, std::int32_t whole)
{
    const std::int32_t product = Value(std::int64_t{part} * 100).as_int32();
    return to_even(static_cast<double>(product) / divisor(whole));
}

std::int64_t PercentSingle(std::int32_t part, std::int32_t whole)
{
    return to_even(double{static_cast<float>(part)} * 100 / divisor(whole));
}

std::int64_t PercentFloor(std::int32_t part, std::int32_t whole)
{
    return static_cast<std::int64_t>(std::floor(part * 100.0 / divisor(whole)));
}

std::string UsedOfTotal(std::int32_t part, std::int32_t whole)
{
    return WholeText(part) + " MB (" + WholeText(PercentCut(part, whole)) + "%) / " +
           WholeText(whole) + " MB (100%)";
}

} // namespace ostrelum::inline sources
