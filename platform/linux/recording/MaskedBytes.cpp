#include "platform/linux/recording/MaskedBytes.h"

#include "platform/linux/formats/DisplayId.h"
#include "platform/linux/formats/Edid.h"
#include "platform/linux/formats/Smbios.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>

namespace ostrelum::linux_platform {
namespace {

/// Offsets of the fields that give the number of a text; 0 for none.
struct KeptTexts {
    std::uint8_t type;
    std::array<std::uint8_t, 4> offsets;
};
constexpr KeptTexts kept_texts[] = {
    {0, {0x04, 0x05, 0x08}}, {1, {0x04, 0x05}},        {2, {0x04, 0x05}},
    {4, {0x04, 0x07, 0x10}}, {17, {0x10, 0x17, 0x1A}},
};

/// Nothing for a structure that is blanked.
const KeptTexts* kept_of(const SmbiosStructure& structure)
{
    const auto row = std::ranges::find(kept_texts, structure.type(), &KeptTexts::type);
    return row == std::end(kept_texts) ? nullptr : row;
}

bool is_kept(const SmbiosStructure& structure, unsigned text)
{
    const KeptTexts* kept = kept_of(structure);
    return kept && std::ranges::any_of(kept->offsets, [&](std::uint8_t offset) {
               return offset != 0 && structure.byte(offset) == text;
           });
}

std::string masked_formatted(const SmbiosStructure& structure)
{
    constexpr std::uint8_t machine = 1;
    constexpr std::size_t header = 4, identity = 0x08, identity_end = 0x18;
    std::string bytes(structure.formatted().begin(), structure.formatted().end());
    const bool kept = kept_of(structure) != nullptr;
    const std::size_t begin = !kept ? header : identity;
    const std::size_t end = !kept ? bytes.size() : identity_end;
    if (!kept || structure.type() == machine) {
        for (std::size_t at = begin; at < std::min(end, bytes.size()); ++at)
            bytes[at] = 0;
    }
    return bytes;
}

std::string masked_texts(const SmbiosStructure& structure)
{
    std::string bytes(structure.strings().begin(), structure.strings().end());
    unsigned text = 1;
    for (char& c : bytes) {
        if (c == 0)
            ++text;
        else if (!is_kept(structure, text))
            c = '*';
    }
    return bytes;
}

constexpr std::size_t block_size = 128;
constexpr std::size_t descriptor_size = 18;

bool sum_is_right(const std::string& block)
{
    return std::accumulate(block.begin(), block.end(), 0) % 256 == 0;
}

std::string summed(std::string block)
{
    block.back() = 0;
    block.back() = static_cast<char>(-std::accumulate(block.begin(), block.end(), 0));
    return block;
}

std::string masked_block(std::string block, std::size_t first_descriptor)
{
    constexpr std::string_view serial("\0\0\0\xFF", 4);
    for (std::size_t at = first_descriptor; at + descriptor_size < block_size;
         at += descriptor_size) {
        if (block.compare(at, serial.size(), serial) == 0)
            block.replace(at + 5, descriptor_size - 5, descriptor_size - 5, ' ');
    }
    return summed(std::move(block));
}

std::string masked_display_id(const std::string& block)
{
    constexpr std::size_t header = 5, block_header = 3;
    const ByteView bytes = bytes_of(block);
    std::string masked = block.substr(0, header);
    for (const DisplayIdBlock& each : display_id_blocks(bytes.subspan(1, block_size - 2))) {
        masked.append(block, masked.size(), block_header);
        masked += each.has_refresh_rates() ? std::string(each.content.begin(), each.content.end())
                                           : std::string(each.content.size(), '\0');
    }
    masked.resize(block_size, '\0');
    return summed(std::move(masked));
}

std::string masked_extension(const std::string& block)
{
    constexpr char cta_861 = 0x02, display_id = 0x70;
    const std::size_t first = static_cast<std::uint8_t>(block[2]);
    if (block[0] == cta_861 && sum_is_right(block))
        return masked_block(block, first == 0 ? block_size : first);
    if (block[0] == display_id && sum_is_right(block))
        return masked_display_id(block);
    return std::string(block_size, '\0');
}

} // namespace

std::string masked_firmware_table(const std::string& table)
{
    std::string masked;
    for (const SmbiosStructure& structure : smbios_structures(bytes_of(table)))
        masked += masked_formatted(structure) + masked_texts(structure);
    return masked;
}

std::string masked_edid(const std::string& edid)
{
    constexpr std::size_t serial = 12, serial_size = 4, descriptors = 54;
    if (!read_edid(edid))
        return "";
    std::string base = edid.substr(0, block_size);
    base.replace(serial, serial_size, serial_size, '\0');
    std::string masked = masked_block(base, descriptors);
    for (std::size_t at = block_size; at + block_size <= edid.size(); at += block_size)
        masked += masked_extension(edid.substr(at, block_size));
    return masked;
}

} // namespace ostrelum::linux_platform
