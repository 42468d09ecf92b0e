#include "sections/MemoryRows.h"

#include "figures/Figures.h"
#include "frame/Page.h"

namespace ostrelum::inline sections {
namespace {

/// An amount of KB as "512 MB (25%)" of the total; empty while one of the figures is not known.
std::string share_of_total(std::int32_t part)
{
    if (Num1 <= 0 || Num2 <= 0)
        return "";
    return WholeMegabytes(part) + " MB (" + WholeText(PercentRound(part, Num1)) + "%)";
}

} // namespace

void set_memory_values()
{
    set_value(4, [] { return share_of_total(Num1 - Num2); });
    set_value(5, [] { return share_of_total(Num2); });
}

} // namespace ostrelum::inline sections
