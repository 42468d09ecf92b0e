#include "platform/linux/services/Regional.h"

#include "platform/system/Failure.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

TEST(Regional, KeepsALocalesFormWithAWholeYear)
{
    const std::pair<const char*, const char*> cases[] = {
        {"%d/%m/%y", "05/03/2012"},         {"%m/%d/%Y", "03/05/2012"},
        {"%d-%m-%y", "05-03-2012"},         {"%D", "03/05/2012"},
        {"%-d.%-m.%y.", "5.3.2012."},       {"%Oy/%Om/%Od", "2012/03/05"},
        {"%OC%Oy %b %Od", "2012 Mar 05"},   {"%e. %A", "5. Monday"},
        {"%Y年%m月%d日", "2012年03月05日"}, {"%d %", "05"},
    };
    for (const auto& [format, text] : cases) {
        LinuxRegional regional({short_date_format(format), "", "."});
        EXPECT_EQ(regional.short_date({2012, 3, 5}), text) << format;
    }
}

TEST(Regional, TellsTheTimeWithoutAZone)
{
    const std::string_view twelve = "%I:%M:%S %p";
    const std::tuple<std::string_view, std::string_view, const char*> cases[] = {
        {"%T", twelve, "14:05:09"},
        {"%r", twelve, "02:05:09 PM"},
        {"%r", "%r", "02:05:09 PM"},
        {"%Z %I:%M:%S %p %z", twelve, "02:05:09 PM"},
        {"%l.%M.%S %P", twelve, "2.05.09 pm"},
        {"%OH:%OM:%OS", "", "14:05:09"},
        {"%r", "", "14:05:09"},
    };
    for (const auto& [format, half_days, text] : cases) {
        LinuxRegional regional({"", long_time_format(format, half_days), "."});
        EXPECT_EQ(regional.long_time({14, 5, 9}), text) << format;
    }
}

TEST(Regional, WithoutALocaleFollowsIso8601)
{
    const Environment cases[] = {
        {},
        {{"LC_ALL", "C.UTF-8"}, {"LANG", "nowhere"}},
        {{"LC_ALL", ""}, {"LC_TIME", "POSIX"}, {"LC_NUMERIC", "xx_XX.UTF-8"}},
        {{"LANG", "../../etc"}},
    };
    for (const Environment& environment : cases) {
        LinuxRegional regional(environment);
        EXPECT_EQ(regional.short_date({2012, 3, 15}), "2012-03-15");
        EXPECT_EQ(regional.long_time({14, 5, 9}), "14:05:09");
        EXPECT_EQ(regional.decimal_sign(), ".");
    }
}

TEST(Regional, RefusesWhatNoCalendarAndNoClockShows)
{
    LinuxRegional regional{RegionalForms{}};
    EXPECT_EQ(regional.short_date({2012, 2, 29}), "2012-02-29");
    EXPECT_EQ(regional.long_time({0, 0, 0}), "00:00:00");
    for (const Date date : {Date{2011, 2, 29}, Date{2012, 4, 31}, Date{2012, 0, 1},
                            Date{2012, 1, 0}, Date{2012, 13, 1}, Date{0, 1, 1}, Date{10000, 1, 1},
                            Date{2012, 257, 1}, Date{2012, 1, 257}})
        EXPECT_THROW(regional.short_date(date), Failure)
            << date.year << '-' << date.month << '-' << date.day;
    for (const TimeOfDay time : {TimeOfDay{24, 0, 0}, TimeOfDay{0, 60, 0}, TimeOfDay{0, 0, 60},
                                 TimeOfDay{-1, 0, 0}, TimeOfDay{0, -1, 0}, TimeOfDay{0, 0, -1}})
        EXPECT_THROW(regional.long_time(time), Failure) << time.hour << ':' << time.minute;
}

} // namespace
} // namespace ostrelum::linux_platform
