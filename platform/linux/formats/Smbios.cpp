#include "platform/linux/formats/Smbios.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

/// Type, length and handle.
constexpr std::size_t header_length = 4;
constexpr std::uint8_t end_of_table = 127;

/// ByteView of the strings behind a structure: up to an empty string, or to the table's end.
std::size_t strings_length(ByteView rest)
{
    constexpr std::uint8_t end[] = {0, 0};
    const auto found = std::search(rest.begin(), rest.end(), std::begin(end), std::end(end));
    const auto length = static_cast<std::size_t>(found - rest.begin());
    return std::min(length + std::size(end), rest.size());
}

} // namespace

template <class Number>
std::optional<Number> SmbiosStructure::number(std::size_t offset) const
{
    if (offset > formatted_.size() || formatted_.size() - offset < sizeof(Number))
        return std::nullopt;
    return static_cast<Number>(little_endian(formatted_, offset, sizeof(Number)));
}

std::optional<std::uint8_t> SmbiosStructure::byte(std::size_t offset) const
{
    return number<std::uint8_t>(offset);
}

std::optional<std::uint16_t> SmbiosStructure::word(std::size_t offset) const
{
    return number<std::uint16_t>(offset);
}

std::optional<std::uint32_t> SmbiosStructure::dword(std::size_t offset) const
{
    return number<std::uint32_t>(offset);
}

std::optional<std::string_view> SmbiosStructure::string(std::size_t offset) const
{
    ByteView rest = strings_;
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

std::vector<SmbiosStructure> smbios_structures(ByteView table)
{
    std::vector<SmbiosStructure> structures;
    while (table.size() >= header_length) {
        const std::size_t length = table[1];
        if (length < header_length || length > table.size() || table[0] == end_of_table)
            break;
        const ByteView rest = table.subspan(length);
        const ByteView strings = rest.first(strings_length(rest));
        structures.emplace_back(table.first(length), strings);
        table = rest.subspan(strings.size());
    }
    return structures;
}

} // namespace ostrelum::linux_platform
