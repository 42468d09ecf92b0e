#include "sources/ManagementService.h"

#include "sources/Ascii.h"

namespace ostrelum::inline sources {

const Value& Instance::operator[](std::string_view name) const
{
    for (const auto& [own_name, value] : properties_) {
        if (same_ascii_letters(own_name, name))
            return value;
    }
    throw Failure("no such property: " + std::string(name));
}

} // namespace ostrelum::inline sources
