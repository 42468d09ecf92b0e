#include "platform/linux/formats/Edid.h"

#include "platform/linux/formats/CtaBlocks.h"
#include "platform/linux/formats/DisplayId.h"
#include "platform/linux/text/Text.h"
#include "platform/system/Bytes.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace ostrelum::linux_platform {
namespace {

constexpr std::size_t block_size = 128;
constexpr std::size_t descriptor_size = 18;
/// Characters of a text in a descriptor.
constexpr std::size_t text_size = 13;

/// First bytes of the display descriptors, behind three zeros.
enum Descriptor : std::uint8_t {
    StandardTimings = 0xFA,
    ProductName = 0xFC,
    RangeLimits = 0xFD,
    FreeText = 0xFE,
};

/// Rates of the established timings in hertz, from the highest bit of the first byte on.
constexpr std::array<int, 17> established_rates = {70, 88, 60, 67, 72, 75, 56, 60, 72,
                                                   75, 75, 87, 60, 70, 75, 75, 75};

bool sum_is_right(ByteView block)
{
    return std::accumulate(block.begin(), block.end(), 0U) % 256 == 0;
}

/// Three letters of five bits each, the first in the high bits.
std::string maker_code(unsigned packed)
{
    std::string code;
    for (const unsigned shift : {10U, 5U, 0U}) {
        const unsigned letter = (packed >> shift) & 31U;
        if (letter < 1 || letter > 26)
            return "";
        code += static_cast<char>('A' + letter - 1);
    }
    return code;
}

/// Characters of ASCII, ended by a line feed where there are fewer than fit. Some makers set a
/// control character between two texts: it counts as a blank.
std::string text_in(ByteView descriptor)
{
    std::string text;
    for (const std::uint8_t byte : descriptor.subspan(5, text_size)) {
        if (byte == '\n' || byte == 0)
            break;
        text += byte > ' ' && byte <= '~' ? static_cast<char>(byte) : ' ';
    }
    return text;
}

/// Whether a text ends with its descriptor, in the midst of a word: then the next one goes on with
/// it. One that ends with a blank may be filled up.
bool goes_on(std::string_view text)
{
    return !text.empty() && text.size() % text_size == 0 && !text.ends_with(' ');
}

class Reader {
public:
    explicit Reader(ByteView base) : revision_(base[19])
    {
        edid_.maker = maker_code(base[8] * 256U + base[9]);
        edid_.product = static_cast<std::uint16_t>(little_endian(base, 10, 2));
        read_established(base.subspan(35, 3));
        read_standard(base.subspan(38, 16));
        for (std::size_t offset = 54; offset + descriptor_size <= 126; offset += descriptor_size)
            read_descriptor(base.subspan(offset, descriptor_size));
    }

    void read_extension(ByteView block)
    {
        constexpr std::uint8_t cta_861 = 0x02;
        constexpr std::uint8_t display_id = 0x70;
        if (block[0] == cta_861)
            read_cta(block);
        else if (block[0] == display_id)
            add(read_display_id(block.subspan(1, block_size - 2)));
    }

    Edid result() &&
    {
        edid_.name = trimmed_space(name_);
        return std::move(edid_);
    }

private:
    void read_established(ByteView bits)
    {
        for (std::size_t i = 0; i < established_rates.size(); ++i) {
            if ((bits[i / 8] & (0x80U >> (i % 8))) != 0)
                add_rate(established_rates[i]);
        }
    }

    void read_standard(ByteView pairs)
    {
        for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
            const bool unused = pairs[i] <= 1;
            if (!unused)
                add_rate(60 + (pairs[i + 1] & 63));
        }
    }

    void read_cta(ByteView block)
    {
        constexpr std::size_t header = 4;
        const std::size_t first = block[2];
        if (first < header || first >= block_size)
            return;
        std::ranges::for_each(rates_of_data_blocks(block.subspan(header, first - header)),
                              [this](int rate) { add_rate(rate); });
        for (std::size_t offset = first; offset + descriptor_size < block_size;
             offset += descriptor_size)
            read_descriptor(block.subspan(offset, descriptor_size));
    }

    /// The limits of the first block go before those of an extension.
    void add(const DisplayId& more)
    {
        if (!edid_.limits)
            edid_.limits = more.limits;
        std::ranges::for_each(more.detailed, [this](const EdidTiming& each) { add(each); });
        std::ranges::for_each(more.rates, [this](int rate) { add_rate(rate); });
    }

    void read_descriptor(ByteView bytes)
    {
        if (bytes[0] != 0 || bytes[1] != 0)
            return read_detailed(bytes);
        switch (bytes[3]) {
        case StandardTimings: return read_standard(bytes.subspan(5, 12));
        case ProductName: return read_name(text_in(bytes));
        case RangeLimits: return read_limits(bytes);
        case FreeText: return read_free_text(text_in(bytes));
        default: return;
        }
    }

    /// A first name that is whole is the monitor's; an extension may repeat it.
    void read_name(const std::string& text)
    {
        if (trimmed_space(name_).empty())
            name_ = text;
        else if (goes_on(name_) && text != name_)
            name_ += text;
    }

    void read_free_text(const std::string& text)
    {
        if (const std::string_view trimmed = trimmed_space(text); !trimmed.empty())
            edid_.free_text = trimmed;
    }

    void read_limits(ByteView bytes)
    {
        constexpr int offset = 255;
        constexpr std::uint8_t first_with_offsets = 4;
        const int beyond = revision_ >= first_with_offsets ? bytes[4] & 3 : 0;
        const bool both_beyond = beyond == 3;
        const bool highest_beyond = (beyond & 2) != 0;
        if (const auto limits = limits_of(bytes[5] + (both_beyond ? offset : 0),
                                          bytes[6] + (highest_beyond ? offset : 0)))
            edid_.limits = limits;
    }

    void read_detailed(ByteView bytes)
    {
        const auto clock_mHz = static_cast<std::int64_t>(little_endian(bytes, 0, 2)) * 10'000'000;
        const int width = bytes[2] + ((bytes[4] & 0xF0) << 4);
        const int columns = width + bytes[3] + ((bytes[4] & 0x0F) << 8);
        const int height = bytes[5] + ((bytes[7] & 0xF0) << 4);
        const int lines = height + bytes[6] + ((bytes[7] & 0x0F) << 8);
        const bool interlaced = (bytes[17] & 0x80) != 0;
        // The two half pictures of an interlaced mode share one more line.
        const std::int64_t halves = std::int64_t{columns} * (2 * lines + (interlaced ? 1 : 0));
        if (const auto timing =
                timing_of(width, interlaced ? 2 * height : height, clock_mHz, halves))
            add(*timing);
    }

    void add(const EdidTiming& timing)
    {
        edid_.detailed.push_back(timing);
        add_rate((timing.refresh_mHz + 500) / 1000);
    }

    void add_rate(int rate)
    {
        if (!edid_.rates_of_modes)
            edid_.rates_of_modes = {rate, rate};
        edid_.rates_of_modes->lowest = std::min(edid_.rates_of_modes->lowest, rate);
        edid_.rates_of_modes->highest = std::max(edid_.rates_of_modes->highest, rate);
    }

    std::uint8_t revision_;
    /// As the descriptors have it, with the blanks at both ends.
    std::string name_;
    Edid edid_;
};

} // namespace

std::optional<Edid> read_edid(std::string_view bytes)
{
    constexpr std::array<std::uint8_t, 8> header = {0, 255, 255, 255, 255, 255, 255, 0};
    const ByteView all = bytes_of(bytes);
    if (all.size() < block_size || !std::ranges::equal(all.first(header.size()), header) ||
        !sum_is_right(all.first(block_size)))
        return std::nullopt;

    Reader reader(all.first(block_size));
    const std::size_t blocks = std::min<std::size_t>(all.size() / block_size, all[126] + 1U);
    for (std::size_t i = 1; i < blocks; ++i) {
        const ByteView block = all.subspan(i * block_size, block_size);
        if (sum_is_right(block))
            reader.read_extension(block);
    }
    return std::move(reader).result();
}

} // namespace ostrelum::linux_platform
