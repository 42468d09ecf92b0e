#include "platform/linux/formats/CtaBlocks.h"

#include "platform/linux/formats/VideoCodes.h"

#include <algorithm>
#include <array>

namespace ostrelum::linux_platform {
namespace {

void add_video_codes(ByteView codes, std::vector<int>& rates)
{
    for (const std::uint8_t byte : codes) {
        // The low codes have room for a bit that says "native".
        const bool native = byte > 128 && byte <= 192;
        if (const auto rate = rate_of_video_code(native ? byte & 0x7F : byte))
            rates.push_back(*rate);
    }
}

/// HDMI had codes of its own for modes of four times the size before the common list had them.
void add_hdmi_codes(ByteView content, std::vector<int>& rates)
{
    constexpr std::array<std::uint8_t, 3> identity = {0x03, 0x0C, 0x00};
    constexpr std::array<int, 4> rates_of_codes = {30, 25, 24, 24};
    constexpr std::size_t flags = 7;
    if (content.size() <= flags || !std::ranges::equal(content.first(identity.size()), identity))
        return;
    const bool has_latency = (content[flags] & 0x80) != 0;
    const bool has_interlaced_latency = (content[flags] & 0x40) != 0;
    const bool has_video = (content[flags] & 0x20) != 0;
    const std::size_t counts =
        flags + 2 + (has_latency ? 2U : 0U) + (has_interlaced_latency ? 2U : 0U);
    if (!has_video || counts >= content.size())
        return;
    const ByteView rest = content.subspan(counts + 1);
    const ByteView codes = rest.first(std::min<std::size_t>(content[counts] >> 5, rest.size()));
    for (const std::uint8_t code : codes) {
        if (code >= 1 && code <= rates_of_codes.size())
            rates.push_back(rates_of_codes[code - 1U]);
    }
}

} // namespace

std::vector<int> rates_of_data_blocks(ByteView blocks)
{
    constexpr unsigned video = 2;
    constexpr unsigned vendor = 3;
    constexpr unsigned extended = 7;
    // The modes that the monitor follows only in YCbCr 4:2:0.
    constexpr std::uint8_t video_of_reduced_colour = 0x0E;
    std::vector<int> rates;
    // Each begins with its kind in three bits and its length in five.
    while (!blocks.empty()) {
        const ByteView rest = blocks.subspan(1);
        const ByteView content = rest.first(std::min<std::size_t>(blocks[0] & 31U, rest.size()));
        const unsigned kind = blocks[0] >> 5;
        if (kind == video)
            add_video_codes(content, rates);
        else if (kind == vendor)
            add_hdmi_codes(content, rates);
        else if (kind == extended && !content.empty() && content[0] == video_of_reduced_colour)
            add_video_codes(content.subspan(1), rates);
        blocks = rest.subspan(content.size());
    }
    return rates;
}

} // namespace ostrelum::linux_platform
