#include "platform/linux/formats/Edid.h"

#include "tests/platform/linux/MadeEdid.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

std::string cta_block(unsigned first_mode, const std::string& modes)
{
    std::string block(128, '\0');
    block[0] = 2;
    block[1] = 3;
    block[2] = static_cast<char>(first_mode);
    block.replace(first_mode, modes.size(), modes);
    return summed(block);
}

TEST(Edid, TellsMakerNameAndModel)
{
    const auto edid =
        read_edid(monitor(descriptor(0xFE, "First\n") + descriptor(0xFE, "AB\x81Q1 ") +
                          descriptor(0xFC, "Thirteen char") + descriptor(0xFE, "\n")));
    ASSERT_TRUE(edid);
    EXPECT_EQ(edid->maker, "XYZ");
    EXPECT_EQ(edid->product, 0x1234);
    EXPECT_EQ(edid->name, "Thirteen char");
    EXPECT_EQ(edid->free_text, "AB Q1");
    EXPECT_FALSE(edid->limits);
    EXPECT_FALSE(edid->rates_of_modes);
    EXPECT_TRUE(edid->detailed.empty());
}

TEST(Edid, ReadsANameThatTakesMoreThanOneDescriptor)
{
    struct Case {
        std::vector<std::string> parts;
        std::string name;
    };
    for (const Case& each : {
             Case{{"Plain\n", "\n"}, "Plain"},
             Case{{"\n", "Plain\n"}, "Plain"},
             Case{{"Plain\n", "Other\n"}, "Plain"},
             Case{{"Cut in a wor", "d\n"}, "Cut in a wor"},
             Case{{"Cut in one wo", "rd\n", "Other\n"}, "Cut in one word"},
             Case{{"Cut at a sign", " and blank"}, "Cut at a sign and blank"},
             Case{{"Cut into thre", "e parts, all ", "told"}, "Cut into three parts, all"},
             Case{{"Cut into thre", "e parts, each", " whole"}, "Cut into three parts, each whole"},
             Case{{"Thirteen char", "Thirteen char"}, "Thirteen char"},
         }) {
        std::string descriptors;
        for (const std::string& part : each.parts)
            descriptors += descriptor(0xFC, part);
        EXPECT_EQ(read_edid(monitor(descriptors))->name, each.name);
    }
}

TEST(Edid, ReadsRangeLimitsWithTheirOffsets)
{
    struct Case {
        unsigned char flags;
        std::string bytes;
        std::optional<RefreshRange> limits;
        char revision = 4;
    };
    for (const Case& each : {
             Case{0, "\x30\x4B", RefreshRange{48, 75}},
             Case{2, "\x30\x19", RefreshRange{48, 280}},
             Case{3, "\x01\x2D", RefreshRange{256, 300}},
             Case{3, "\x30\x4B", RefreshRange{48, 75}, 3},
             Case{0, "\x4B\x30", std::nullopt},
             Case{0, std::string("\0\x4B", 2), std::nullopt},
         }) {
        const auto edid =
            read_edid(monitor(descriptor(0xFD, each.bytes, each.flags), 0, each.revision));
        ASSERT_TRUE(edid);
        EXPECT_EQ(edid->limits, each.limits) << int{each.flags};
    }
}

TEST(Edid, ComputesTheRefreshOfDetailedModes)
{
    // 154 MHz over 1900 + 100 columns and 1245 lines; and half pictures of 540 + 22 and a half.
    const auto edid =
        read_edid(monitor(mode(15400, 1900, 1200, 45) + mode(7425, 1920, 540, 22, true)));
    ASSERT_TRUE(edid);
    const std::vector<EdidTiming> expected = {{1900, 1200, 61847}, {1920, 1080, 65347}};
    EXPECT_EQ(edid->detailed, expected);
    EXPECT_EQ(edid->rates_of_modes, (RefreshRange{62, 65}));
}

TEST(Edid, TakesAllListsOfModesIntoTheExtremes)
{
    std::string standard =
        monitor(descriptor(0xFA, "\x81\x59\x01\x01\x01\x01\x01\x01\x01\x01\x01\x01\n"));
    standard[36] = 0x08; // 1024x768 at 60 Hz
    standard[38] = '\xD1';
    standard[39] = '\xC0' + 10; // 70 Hz
    const auto edid = read_edid(summed(standard));
    ASSERT_TRUE(edid);
    EXPECT_EQ(edid->rates_of_modes, (RefreshRange{60, 85}));
    EXPECT_TRUE(edid->detailed.empty());
}

TEST(Edid, FollowsExtensionsThatAreWhole)
{
    const std::string base = monitor(mode(15400, 1900, 1200, 45), 2);
    const std::string fast = cta_block(6, mode(30800, 1900, 1200, 45));
    std::string broken = fast;
    broken[6] = 1;
    const auto modes = [](const std::string& bytes) { return read_edid(bytes)->detailed.size(); };
    EXPECT_EQ(modes(base + fast + fast), 3U);
    EXPECT_EQ(modes(base + broken + fast), 2U);
    EXPECT_EQ(modes(base + fast.substr(0, 127)), 1U);
    EXPECT_EQ(modes(base + cta_block(3, mode(30800, 1900, 1200, 45))), 1U) << "no modes in it";
    EXPECT_EQ(modes(base + cta_block(109, mode(30800, 1900, 1200, 45))), 2U) << "the last place";
    // Some drivers give the whole twice: the first block's count holds.
    EXPECT_EQ(modes(base + fast + fast + fast), 3U);
}

TEST(Edid, TakesTheCodesOfVideoModesIntoTheExtremes)
{
    struct Case {
        std::string blocks;
        std::optional<RefreshRange> rates;
    };
    for (const Case& each : {
             Case{"\x43\x90\x20\x3F", RefreshRange{24, 120}},            // 16 (native), 32, 63
             Case{"\x23\x20\x34\x3F\x42\xC7\x20", RefreshRange{24, 60}}, // behind sound: 199, 32
             Case{"\x42\xC0\x13", RefreshRange{50, 100}},                // 64 (native), 19
             Case{"\x42\x80\xFF", std::nullopt},
             Case{"\x5F\x10", RefreshRange{60, 60}},     // longer than its room
             Case{"\xE2\x0E\x60", RefreshRange{50, 50}}, // reduced colour: 96
             Case{std::string("\x6C\x03\x0C\0\0\0\0\0\x20\0\x40\x01\x03", 13),
                  RefreshRange{24, 30}},
             Case{std::string("\x6F\x03\x0C\0\0\0\0\0\xE0\1\1\1\1\0\x20\x02", 16),
                  RefreshRange{25, 25}},
             Case{std::string("\x6A\x03\x0C\0\0\0\0\0\0\0\x40\x01", 11), std::nullopt}, // no video
         }) {
        std::string block = cta_block(4 + static_cast<unsigned>(each.blocks.size()), "");
        block.replace(4, each.blocks.size(), each.blocks);
        EXPECT_EQ(read_edid(monitor("", 1) + summed(block))->rates_of_modes, each.rates);
    }
}

/// A data block of DisplayID.
std::string data_block(unsigned char kind, const std::string& content, char revision = 0)
{
    return std::string{static_cast<char>(kind), revision, static_cast<char>(content.size())} +
           content;
}

TEST(Edid, TakesDisplayIdsModesAndLimitsToo)
{
    // 684420 units of the clock over 2560 + 160 columns and 1440 + 85 lines.
    const std::string fast("\x83\x71\x0A\x80\xFF\x09\x9F\0\0\0\0\0\x9F\x05\x54\0\0\0\0\0", 20);
    const std::string limits("\0\0\0\0\0\0\x30\x2C\x81", 9);
    const std::string older_limits("\0\0\0\0\0\0\0\0\0\0\x30\x4B\0\0\0", 15);
    const std::string formula("\0\xFF\x09\x9F\x05\xC7", 6);
    std::string interlaced = fast;
    interlaced[3] = 0x10;
    const EdidTiming slow = {1900, 1200, 61847};
    const EdidTiming quick = {2560, 1440, 165000};
    struct Case {
        std::string blocks;
        std::vector<EdidTiming> detailed;
        int highest;
        std::optional<RefreshRange> limits;
    };
    for (const Case& each : {
             Case{data_block(0x22, fast), {slow, quick}, 165, {}},
             Case{data_block(0x03, fast.substr(0, 18)), {slow}, 62, {}},
             Case{data_block(0x22, interlaced + fast), {slow, quick}, 165, {}},
             Case{data_block(0x24, formula), {slow}, 200, {}},
             Case{data_block(0x81, "\x41\x3F"), {slow}, 120, {}},
             Case{data_block(0x25, limits, 1) + data_block(0x22, fast),
                  {slow, quick},
                  165,
                  {{48, 300}}},
             Case{data_block(0x25, limits), {slow}, 62, {}},
             Case{data_block(0x09, older_limits), {slow}, 62, {{48, 75}}},
             Case{data_block(0x25, limits.substr(1), 1), {slow}, 62, {}},
             Case{data_block(0x22, fast).substr(0, 20), {slow}, 62, {}},
         }) {
        const auto edid =
            read_edid(monitor(mode(15400, 1900, 1200, 45), 1) + display_id(each.blocks));
        EXPECT_EQ(edid->detailed, each.detailed);
        EXPECT_EQ(edid->rates_of_modes->highest, each.highest);
        EXPECT_EQ(edid->limits, each.limits);
    }
    const auto both = read_edid(monitor(descriptor(0xFD, "\x28\x90"), 1) +
                                display_id(data_block(0x25, limits, 1)));
    EXPECT_EQ(both->limits, (RefreshRange{40, 144})) << "the first block's own";
}

TEST(Edid, RefusesWhatIsNoMonitorsData)
{
    std::string wrong_sum = monitor();
    wrong_sum[20] = 1;
    std::string wrong_header = monitor();
    wrong_header[1] = '\0';
    for (const std::string& bytes :
         {std::string(), monitor().substr(0, 127), wrong_sum, summed(wrong_header)})
        EXPECT_FALSE(read_edid(bytes));
}

TEST(Edid, LeavesOutWhatIsNoLetterAndNoMode)
{
    std::string bytes =
        monitor(mode(1, 4000, 4000, 45) + mode(65535, 1, 1, 0) + mode(15400, 0, 1200, 45));
    bytes[8] = 0;
    const auto edid = read_edid(summed(bytes));
    ASSERT_TRUE(edid);
    EXPECT_EQ(edid->maker, "");
    EXPECT_TRUE(edid->detailed.empty());
    EXPECT_FALSE(edid->rates_of_modes);
}

} // namespace
} // namespace ostrelum::linux_platform
