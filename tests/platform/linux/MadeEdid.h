#pragma once

#include <numeric>
#include <string>

/// Monitors' data, made by hand.
namespace ostrelum::linux_platform {

/// Makes the sum of the last block right.
inline std::string summed(std::string block)
{
    const unsigned sum =
        std::accumulate(block.end() - 128, block.end() - 1, 0U,
                        [](unsigned a, char b) { return a + static_cast<unsigned char>(b); });
    block.back() = static_cast<char>(256 - sum % 256);
    return block;
}

/// A monitor XYZ 1234h without any mode but those of the descriptors.
inline std::string monitor(std::string descriptors = "", int extensions = 0, char revision = 4)
{
    std::string block(128, '\0');
    block.replace(1, 6, 6, '\xFF');
    block[8] = 0x63; // X = 24, Y = 25, Z = 26
    block[9] = 0x3A;
    block[10] = 0x34;
    block[11] = 0x12;
    block[18] = 1;
    block[19] = revision;
    block.replace(38, 16, 16, '\x01');
    block.replace(54, descriptors.size(), descriptors);
    block[126] = static_cast<char>(extensions);
    return summed(block);
}

inline std::string descriptor(unsigned char kind, std::string content, unsigned char flags = 0)
{
    std::string bytes = {0, 0, 0, static_cast<char>(kind), static_cast<char>(flags)};
    content.resize(13, ' ');
    return bytes + content;
}

/// A mode with 100 columns of blanking.
inline std::string mode(unsigned clock, unsigned width, unsigned height, unsigned blank_lines,
                        bool interlaced = false)
{
    std::string bytes(18, '\0');
    const auto put = [&](std::size_t at, unsigned value) { bytes[at] = static_cast<char>(value); };
    put(0, clock & 255);
    put(1, clock >> 8);
    put(2, width & 255);
    put(3, 100);
    put(4, (width >> 8) << 4);
    put(5, height & 255);
    put(6, blank_lines);
    put(7, (height >> 8) << 4);
    put(17, interlaced ? 0x80 : 0);
    return bytes;
}

/// An extension of DisplayID with these data blocks.
inline std::string display_id(const std::string& blocks, char version = 0x20)
{
    std::string block(128, '\0');
    block[0] = 0x70;
    block[1] = version;
    block[2] = static_cast<char>(blocks.size());
    block[3] = 3;
    block.replace(5, blocks.size(), blocks);
    // The section has a sum of its own, behind the last block.
    block[126] = '\0';
    return summed(block);
}

} // namespace ostrelum::linux_platform
