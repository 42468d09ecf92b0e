#include "platform/memory/MemorySystem.h"
#include "sources/DateTime.h"
#include "sources/Durations.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

constexpr std::uint32_t Day = 24U * 60 * 60 * 1000;

TEST(UptimeText, LeavesOutTheDaysAndEndsAfter28)
{
    MemoryRegional regional;
    const struct {
        std::uint32_t milliseconds;
        const char* text;
    } cases[] = {{0, "00:00:00"},
                 {999, "00:00:00"},
                 {1000, "00:00:01"},
                 {Day - 1, "23:59:59"},
                 {Day + ((2 * 60 + 3) * 60 + 4) * 1000, "02:03:04"},
                 {2147483648U, "20:31:23"},
                 {29 * Day - 1, "23:59:59"},
                 {29 * Day, ""},
                 {4294967295U, ""}};
    for (const auto& c : cases)
        EXPECT_EQ(UptimeText(c.milliseconds, regional), c.text) << c.milliseconds;
}

TEST(MinutesText, WrapsAtADayAndFailsBeyond16BitsOfHours)
{
    const struct {
        std::int32_t minutes;
        const char* text;
    } cases[] = {{0, "00:00"},    {59, "00:59"},   {60, "01:00"},     {1439, "23:59"},
                 {1440, "00:00"}, {1500, "01:00"}, {1966079, "07:59"}};
    for (const auto& c : cases)
        EXPECT_EQ(MinutesText(c.minutes), c.text) << c.minutes;
    for (const std::int32_t minutes : {1966080, 71582788, 2147483647, -1})
        EXPECT_THROW(MinutesText(minutes), Failure) << minutes;
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
