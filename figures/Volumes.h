#pragma once

#include "figures/PassOver.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Volumes and drives that stand side by side in a row: each row is a list to which every volume
/// adds its entry and a separator.
namespace ostrelum::inline figures {

/// The lists about volumes and drives in Datos, in the order of the rows of a page.
enum class VolumeSlot {
    Names = 1,
    Letters,
    Capacities,
    Used,
    Free,
    InternalNames,
    FileSystems,
    SerialNumbers,
    Partitions, ///< of the last internal drive; no list
};

/// Empties the slots; the lists of sizes begin with "(".
void begin_lists();

/// Adds an entry; one that cannot be made adds nothing.
void add_entry(std::string& list, std::invocable auto make_entry)
{
    attempt([&] { list += make_entry(); });
}

/// Adds a property, trimmed, and " - ". A null adds nothing.
void add_name(std::string& list, const Instance& item, const char* property);

/// Adds a drive letter as "(C:) - ". A null adds nothing.
void add_letter(std::string& list, const Instance& item, const char* property);

/// Adds a size and ") - ("; the list begins with "(". No size, no entry.
void add_capacity(std::string& list, const std::string& size);

/// Adds a size and " - ", if there is a size, and behind it the percentage that the part is of the
/// whole and "%) - (". A whole of 0 leaves the percentage out.
void add_share(std::string& list, const std::string& size, std::int32_t part, std::int32_t whole);

/// Whether a drive's InterfaceType is exactly one of two; a null is neither.
bool hangs_on(const Instance& item, std::string_view bus, std::string_view other_bus);

/// Separators behind the last entry of a list, in characters: " - ", and " - (" of a list of sizes.
inline constexpr std::size_t name_tail = 3;
inline constexpr std::size_t size_tail = 4;

/// A list without the separator behind its last entry. Throws Failure for a list that is shorter
/// than the separator: it has no entry.
std::string without_tail(const std::string& list, std::size_t tail);

} // namespace ostrelum::inline figures
