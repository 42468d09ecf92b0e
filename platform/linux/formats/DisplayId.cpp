#include "platform/linux/formats/DisplayId.h"

#include "platform/linux/formats/CtaBlocks.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

/// Kinds of data blocks; the second version's begin at 20h.
enum Kind : std::uint8_t {
    DetailedTimings = 0x03,
    RangeLimits = 0x09,
    DetailedTimingsV2 = 0x22,
    FormulaTimings = 0x24,
    DynamicRangeLimits = 0x25,
    CtaDataBlocks = 0x81,
};

int word(ByteView bytes, std::size_t at)
{
    return static_cast<int>(little_endian(bytes, at, 2));
}

void read_detailed(ByteView content, std::int64_t unit_mHz, DisplayId& found)
{
    constexpr std::size_t size = 20;
    constexpr std::uint8_t interlaced = 0x10;
    for (; content.size() >= size; content = content.subspan(size)) {
        const auto clock = static_cast<std::int64_t>(little_endian(content, 0, 3)) + 1;
        const int width = word(content, 4) + 1;
        const int height = word(content, 12) + 1;
        const std::int64_t columns = width + word(content, 6) + 1;
        const std::int64_t lines = height + word(content, 14) + 1;
        const auto timing = timing_of(width, height, clock * unit_mHz, 2 * columns * lines);
        if (timing && (content[3] & interlaced) == 0)
            found.detailed.push_back(*timing);
    }
}

/// Size and rate; all else follows from VESA's formula.
void read_formula(ByteView content, DisplayId& found)
{
    constexpr std::size_t size = 6;
    for (; content.size() >= size; content = content.subspan(size))
        found.rates.push_back(content[5] + 1);
}

void keep(std::optional<RefreshRange> limits, DisplayId& found)
{
    if (limits)
        found.limits = limits;
}

std::optional<RefreshRange> range_limits(ByteView content)
{
    constexpr std::size_t size = 15;
    return content.size() < size ? std::nullopt : limits_of(content[10], content[11]);
}

/// The first revision of the block has two more bits of the highest rate.
std::optional<RefreshRange> dynamic_limits(ByteView content, unsigned revision)
{
    constexpr std::size_t size = 9;
    if (content.size() < size)
        return std::nullopt;
    const int more = revision > 0 ? 256 * (content[8] & 3) : 0;
    return limits_of(content[6], content[7] + more);
}

void read_block(const DisplayIdBlock& block, DisplayId& found)
{
    constexpr std::int64_t kHz = 1'000'000;
    switch (block.kind) {
    case DetailedTimings: return read_detailed(block.content, 10 * kHz, found);
    case DetailedTimingsV2: return read_detailed(block.content, kHz, found);
    case FormulaTimings: return read_formula(block.content, found);
    case DynamicRangeLimits: return keep(dynamic_limits(block.content, block.revision), found);
    case RangeLimits: return keep(range_limits(block.content), found);
    case CtaDataBlocks:
        for (const int rate : rates_of_data_blocks(block.content))
            found.rates.push_back(rate);
        return;
    default: return;
    }
}

} // namespace

bool DisplayIdBlock::has_refresh_rates() const
{
    constexpr std::uint8_t kinds[] = {DetailedTimings, RangeLimits,        DetailedTimingsV2,
                                      FormulaTimings,  DynamicRangeLimits, CtaDataBlocks};
    return std::ranges::find(kinds, kind) != std::end(kinds);
}

std::vector<DisplayIdBlock> display_id_blocks(ByteView section)
{
    constexpr std::size_t section_header = 4;
    constexpr std::size_t block_header = 3;
    std::vector<DisplayIdBlock> found;
    if (section.size() < section_header)
        return found;
    ByteView blocks = section.subspan(section_header);
    blocks = blocks.first(std::min<std::size_t>(section[1], blocks.size()));
    while (blocks.size() >= block_header) {
        const ByteView rest = blocks.subspan(block_header);
        if (blocks[2] > rest.size())
            break;
        found.push_back({blocks[0], blocks[1] & 7U, rest.first(blocks[2])});
        blocks = rest.subspan(blocks[2]);
    }
    return found;
}

DisplayId read_display_id(ByteView section)
{
    DisplayId found;
    for (const DisplayIdBlock& block : display_id_blocks(section))
        read_block(block, found);
    return found;
}

} // namespace ostrelum::linux_platform
