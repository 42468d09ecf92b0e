#include "platform/memory/MemorySystem.h"
#include "sources/Characters.h"
#include "sources/DateTime.h"
#include "sources/Durations.h"
#include "sources/NumberText.h"
#include "sources/Percent.h"
#include "sources/Processors.h"
#include "sources/Utf8.h"
#include "tests/Split.h"

#include <gtest/gtest.h>

namespace ostrelum {

using namespace memory_platform;

namespace {

TEST(RealText, HasFifteenSignificantDigitsAndNoTrailingZeros)
{
    const std::pair<double, std::string> cases[] = {{3, "3"},
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

TEST(Characters, AreCodePoints)
{
    EXPECT_EQ(character_count("añ€"), 3U);
    for (const auto& [text, point, length] : {std::tuple("ñb", U'ñ', 2U),
                                              {"€", U'€', 3U},
                                              {"😀€", U'😀', 4U},
                                              {"\xE2\x82", U'\uFFFD', 1U}}) {
        EXPECT_EQ(leading_character(text).point, point) << text;
        EXPECT_EQ(leading_character(text).length, length) << text;
    }
    EXPECT_EQ(first_characters("añ€", 2), "añ");
    EXPECT_EQ(last_characters("añ€", 2), "ñ€");
    EXPECT_EQ(first_characters("añ", 3) + last_characters("añ", 3), "añañ");
    EXPECT_EQ(first_characters("", 1) + last_characters("", 1), "");
}

/// Only the rounded one has a product of 32 bits. 16777217 is the first whole number that single
/// precision cannot hold: it becomes 16777216, half a percent.
TEST(Percentages, RoundEachInItsOwnWay)
{
    constexpr int fails = -1;
    const struct {
        std::int32_t part, whole;
        int cut, round, single, floor;
    } cases[] = {{1, 3, 33, 33, 33, 33},
                 {2, 3, 66, 67, 67, 66},
                 {1, 8, 12, 12, 12, 12},
                 {3, 8, 37, 38, 38, 37},
                 {-1, 3, -33, -33, -33, -34},
                 {21474836, 42949672, 50, 50, 50, 50},
                 {21474837, 42949674, 50, fails, 50, 50},
                 {2147483646, 2147483647, 99, fails, 100, 99},
                 {16777217, 134217728, 12, 13, 12, 12}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.part);
        EXPECT_EQ(PercentCut(c.part, c.whole), c.cut);
        if (c.round == fails)
            EXPECT_THROW(PercentRound(c.part, c.whole), Failure);
        else
            EXPECT_EQ(PercentRound(c.part, c.whole), c.round);
        EXPECT_EQ(PercentSingle(c.part, c.whole), c.single);
        EXPECT_EQ(PercentFloor(c.part, c.whole), c.floor);
    }
    for (const auto rule : {PercentCut, PercentRound, PercentSingle, PercentFloor})
        EXPECT_THROW(rule(1, 0), Failure);
}

TEST(CacheText, GoesByItsLength)
{
    for (const auto& [kilobytes, text] :
         pairs("0=|64=64 KB|512=512 KB|1024=1 MB|1536=1 MB|2048=2 MB|9999=9 MB|12288="))
        EXPECT_EQ(CacheText(kilobytes), text);
    EXPECT_EQ(CacheText(""), "");
    EXPECT_THROW(CacheText("some"), Failure);
}

constexpr std::uint64_t day = 24U * 60 * 60 * 1000;

TEST(UptimeText, LeavesOutTheDaysAndEndsAfter28)
{
    MemoryRegional regional;
    const struct {
        std::uint64_t milliseconds;
        const char* text;
    } cases[] = {{999, "00:00:00"},
                 {day + ((2 * 60 + 3) * 60 + 4) * 1000, "02:03:04"},
                 {2147483648U, "20:31:23"},
                 {29 * day - 1, "23:59:59"},
                 {29 * day, ""},
                 {UINT64_MAX, ""}};
    for (const auto& c : cases)
        EXPECT_EQ(UptimeText(c.milliseconds, regional), c.text) << c.milliseconds;
}

TEST(ServiceDatetimes, AreReadByTheirPlaces)
{
    MemoryRegional regional;
    const char* datetime = "20120315140509.123456-180";
    EXPECT_EQ(WmiDateText(datetime, regional), "15/03/2012");
    EXPECT_EQ(WmiTimeText(datetime, regional), "14:05:09");
    EXPECT_EQ(WmiDateText("20120315******.******+***", regional), "15/03/2012");
    for (const char* text : {"", "2012031", "2012-3-15", "********140509", "20120231000000"})
        EXPECT_THROW(WmiDateText(text, regional), Failure) << text;
    for (const char* text : {"20120315", "2012031514050", "20120315******", "20120315246000"})
        EXPECT_THROW(WmiTimeText(text, regional), Failure) << text;
}

} // namespace
} // namespace ostrelum
