#include "platform/linux/formats/Smbios.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

/// Type, length and handle.
constexpr std::size_t header_length = 4;
constexpr std::uint8_t end_of_table = 127;

/// Bytes of the strings behind a structure: up to an empty string, or to the table's end.
std::size_t strings_length(Bytes rest)
{
    constexpr std::uint8_t end[] = {0, 0};
    const auto found = std::search(rest.begin(), rest.end(), std::begin(end), std::end(end));
    const auto length = static_cast<std::size_t>(found - rest.begin());
    return std::min(length + std::size(end), rest.size());
}

} // namespace

std::optional<std::uint8_t> SmbiosStructure::byte(std::size_t offset) const
{
    if (offset >= formatted_.size())
        return std::nullopt;
    return formatted_[offset];
}

std::optional<std::uint16_t> SmbiosStructure::word(std::size_t offset) const
{
    const auto low = byte(offset);
    const auto high = byte(offset + 1);
    if (!low || !high)
        return std::nullopt;
    return static_cast<std::uint16_t>(*low | *high << 8);
}

std::optional<std::uint32_t> SmbiosStructure::dword(std::size_t offset) const
{
    const auto low = word(offset);
    const auto high = word(offset + 2);
    if (!low || !high)
        return std::nullopt;
    return *low | std::uint32_t{*high} << 16;
}

std::optional<std::string_view> SmbiosStructure::string(std::size_t offset) const
{
    Bytes rest = strings_;
    for (unsigned number = byte(offset).value_or(0); number > 0; --number) {
        const auto end = std::ranges::find(rest, std::uint8_t{0});
        const auto length = static_cast<std::size_t>(end - rest.begin());
        if (end == rest.end() || length == 0)
            return std::nullopt;
        if (number == 1)
            return std::string_view(reinterpret_cast<const char*>(rest.data()), length);
        rest = rest.subspan(length + 1);
    }
    return std::nullopt;
}

std::vector<SmbiosStructure> smbios_structures(Bytes table)
{
    std::vector<SmbiosStructure> structures;
    while (table.size() >= header_length) {
        const std::size_t length = table[1];
        if (length < header_length || length > table.size() || table[0] == end_of_table)
            break;
        const Bytes rest = table.subspan(length);
        const Bytes strings = rest.first(strings_length(rest));
        structures.emplace_back(table.first(length), strings);
        table = rest.subspan(strings.size());
    }
    return structures;
}

} // namespace ostrelum::linux_platform
