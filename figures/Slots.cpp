#include "figures/Slots.h"

#include "sources/Ascii.h"

namespace ostrelum::inline figures {

void clear(std::array<std::string, 12>& values, int from, int to)
{
    for (int slot = from; slot <= to; ++slot)
        values.at(static_cast<std::size_t>(slot)).clear();
}

std::string trimmed(const Value& value)
{
    return std::string(trim_blanks(value.text()));
}

} // namespace ostrelum::inline figures
