#pragma once

#include "sources/Value.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <string>
#include <type_traits>

/// Buffers of texts, and how a reader fills them.
namespace ostrelum::inline figures {

/// A buffer of texts. Whoever fills it names its slots by an enumeration: a bare number does not
/// compile.
template <std::size_t Count>
struct TextSlots : std::array<std::string, Count> {
    template <class Slot>
    requires std::is_enum_v<Slot> std::string& operator[](Slot slot)
    {
        return this->at(static_cast<std::size_t>(slot));
    }
    template <class Slot>
    requires std::is_enum_v<Slot>
    const std::string& operator[](Slot slot) const
    {
        return this->at(static_cast<std::size_t>(slot));
    }
};

/// Empties the slots `from` to `to`.
template <std::size_t Count, class Slot>
void clear(TextSlots<Count>& values, Slot from, Slot to)
{
    for (auto slot = static_cast<std::size_t>(from); slot <= static_cast<std::size_t>(to); ++slot)
        values.at(slot).clear();
}

/// A text without the blanks at its ends.
std::string trimmed(const Value& value);

} // namespace ostrelum::inline figures
