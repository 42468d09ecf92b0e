#include "platform/system/Failure.h"
#include "sources/Characters.h"
#include "sources/NumberText.h"
#include "sources/Percent.h"
#include "sources/Processors.h"
#include "tests/Split.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

TEST(RealText, HasFifteenSignificantDigitsAndNoTrailingZeros)
{
    const std::pair<double, std::string> cases[] = {{2.394, "2.394"},
                                                    {3, "3"},
                                                    {0.8, "0.8"},
                                                    {1.2056640625, "1.2056640625"},
                                                    {1.0 / 3, "0.333333333333333"},
                                                    {2147483647.0 / 1024, "2097151.99902344"},
                                                    {0.1 + 0.2, "0.3"},
                                                    {-0.0, "0"},
                                                    {-1.5, "-1.5"}};
    for (const auto& [number, text] : cases)
        EXPECT_EQ(RealText(number, "."), text);
    EXPECT_EQ(RealText(0.5, ","), "0,5");
    EXPECT_EQ(WholeText(-7), "-7");
}

TEST(RoundedDown, FailsBeyond32Bits)
{
    EXPECT_EQ(rounded_down(-0.5), -1);
    EXPECT_EQ(rounded_down(2147483647.9), 2147483647);
    EXPECT_THROW(rounded_down(2147483648.0), Failure);
}

TEST(Characters, AreCodePoints)
{
    EXPECT_EQ(character_count("añ€"), 3U);
    EXPECT_EQ(first_characters("añ€", 2), "añ");
    EXPECT_EQ(last_characters("añ€", 2), "ñ€");
    EXPECT_EQ(first_characters("añ", 3) + last_characters("añ", 3), "añañ");
    EXPECT_EQ(first_characters("", 1) + last_characters("", 1), "");
}

TEST(Percentages, RoundEachInItsOwnWay)
{
    const struct {
        std::int32_t part, whole;
        int cut, round, single, floor;
    } cases[] = {
        {1, 3, 33, 33, 33, 33},       {2, 3, 66, 67, 67, 66},
        {1, 8, 12, 12, 12, 12},       {3, 8, 37, 38, 38, 37},
        {5, 8, 62, 62, 62, 62},       {-1, 3, -33, -33, -33, -34},
        {0, 5, 0, 0, 0, 0},           {7, 7, 100, 100, 100, 100},
        {1600, 3200, 50, 50, 50, 50}, {21474836, 2147483600, 1, 1, 1, 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PercentCut(c.part, c.whole), c.cut) << c.part << " of " << c.whole;
        EXPECT_EQ(PercentRound(c.part, c.whole), c.round) << c.part << " of " << c.whole;
        EXPECT_EQ(PercentSingle(c.part, c.whole), c.single) << c.part << " of " << c.whole;
        EXPECT_EQ(PercentFloor(c.part, c.whole), c.floor) << c.part << " of " << c.whole;
    }
}

TEST(Percentages, OnlyTheRoundedOneHasAProductOf32Bits)
{
    EXPECT_EQ(PercentRound(21474836, 21474836), 100);
    EXPECT_THROW(PercentRound(21474837, 42949674), Failure);
    EXPECT_EQ(PercentSingle(21474837, 42949674), 50);
    EXPECT_EQ(PercentCut(2147483647, 2147483647), 100);
    EXPECT_EQ(PercentFloor(2147483646, 2147483647), 99);
}

TEST(Percentages, InSinglePrecisionMayMeetATieThatIsNone)
{
    // 16777217 is the first whole number that single precision cannot hold: it becomes 16777216,
    // half a percent of 3355443200.
    EXPECT_EQ(PercentRound(16777217, 134217728), 13);
    EXPECT_EQ(PercentSingle(16777217, 134217728), 12);
}

TEST(Percentages, OfNothingFail)
{
    for (const auto rule : {PercentCut, PercentRound, PercentSingle, PercentFloor})
        EXPECT_THROW(rule(1, 0), Failure);
}

TEST(ClockText, KeepsFourCharacters)
{
    EXPECT_EQ(ClockText(12345, "."), "12.3 Ghz");
    EXPECT_EQ(ClockText(2394, ","), "2,39 Ghz");
}

TEST(CacheText, GoesByItsLength)
{
    for (const auto& [kilobytes, text] :
         pairs("0=|64=64 KB|512=512 KB|1024=1 MB|1536=1 MB|2048=2 MB|9999=9 MB|12288="))
        EXPECT_EQ(CacheText(kilobytes), text);
    EXPECT_EQ(CacheText(""), "");
    EXPECT_THROW(CacheText("some"), Failure);
}

} // namespace
} // namespace ostrelum
