#pragma once

#include "platform/system/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// Reading the firmware's table of the machine (DMTF DSP0134, System Management BIOS Reference
/// Specification, chapter 6), without its entry point.
namespace ostrelum::linux_platform {

/// A structure of the table. It points into the table's bytes.
class SmbiosStructure {
public:
    SmbiosStructure(ByteView formatted, ByteView strings) : formatted_(formatted), strings_(strings)
    {
    }

    std::uint8_t type() const { return formatted_[0]; }

    /// Its bytes, and those of the strings behind it with all that ends them.
    ByteView formatted() const { return formatted_; }
    ByteView strings() const { return strings_; }

    /// A field by its offset in the structure, as the standard numbers them. Nothing for one
    /// that ends behind the structure: older firmware has shorter ones.
    std::optional<std::uint8_t> byte(std::size_t offset) const;
    std::optional<std::uint16_t> word(std::size_t offset) const;
    std::optional<std::uint32_t> dword(std::size_t offset) const;

    /// The string that the field at `offset` gives the number of, as the firmware wrote it. Nothing
    /// for number 0, which means none, and for a number that the structure has no string for.
    std::optional<std::string_view> string(std::size_t offset) const;

private:
    template <class Number>
    std::optional<Number> number(std::size_t offset) const;

    ByteView formatted_;
    ByteView strings_;
};

/// The structures in their order, up to the end-of-table structure, or to the first one that is too
/// short to be one or leads out of the table. Strings that the table's end cuts off are left out.
std::vector<SmbiosStructure> smbios_structures(ByteView table);

} // namespace ostrelum::linux_platform
