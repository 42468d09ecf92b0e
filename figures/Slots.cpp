#include "figures/Slots.h"

#include "sources/Ascii.h"

namespace ostrelum::inline figures {

std::string trimmed(const Value& value)
{
    return std::string(trim_blanks(value.text()));
}

} // namespace ostrelum::inline figures
