#include "tests/Stage.h"
#include "tests/sections/PageRows.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* Long =
    "Select Architecture, Caption, CurrentClockSpeed, L2CacheSize, L3CacheSize, Manufacturer, "
    "MaxClockSpeed, Name, SocketDesignation from Win32_Processor";
constexpr const char* Short = "Select Architecture, Caption, CurrentClockSpeed, L2CacheSize, "
                              "Manufacturer, MaxClockSpeed, Name, SocketDesignation from "
                              "Win32_Processor";

class SecCPUPage : public Stage {
protected:
    SecCPUPage() { start_program(); }

    static Instance processor(const Value& speed, const Value& maximum, const Value& l2 = 512,
                              const Value& l3 = 6144, const Value& kind = 9)
    {
        return Instance({{"Architecture", kind},
                         {"Caption", "Family 6"},
                         {"CurrentClockSpeed", speed},
                         {"L2CacheSize", l2},
                         {"L3CacheSize", l3},
                         {"Manufacturer", "Maker"},
                         {"MaxClockSpeed", maximum},
                         {"Name", " Fast one "},
                         {"SocketDesignation", "Socket 7"}});
    }
    void open(const Instance& item)
    {
        script.results = {{Long, {item}}, {Short, {item}}};
        press("LMenu", 5);
    }
};

TEST_F(SecCPUPage, ShowsTheFirstProcessor)
{
    machine.processors = 8;
    leave_another_page();
    F1.Line1.Visible = F1.Line2.Visible = F1.Laviso.Visible = true;
    script.results[Long] = {processor(1600, 3200), processor(1, 2)};
    press("LMenu", 5);
    EXPECT_EQ(F1.Titulo.Caption, "Processor");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Name: Fast one",
                            "Current/Maximum speed: 1600 Mhz (50%) / 3200 Mhz (100%)",
                            "Number of cores: 8", "Manufacturer: Maker", "Type: Family 6",
                            "Socket: Socket 7", "Architecture: x64", "L2 cache size: 512 KB",
                            "L3 cache size: 6 MB", "", "", ""));
    EXPECT_EQ(script.asked.back(), Long);
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_FALSE(F1.LT(1).Font.Italic || F1.LT(8).Font.Italic);
    EXPECT_FALSE(F1.Line1.Visible || F1.Line2.Visible || F1.Laviso.Visible);
    EXPECT_FALSE(F1.Timer1.Enabled);
}

TEST_F(SecCPUPage, TellsTheSpeedInTheFormThatSaysMost)
{
    const struct {
        Value speed, maximum;
        const char* text;
    } cases[] = {{2399, 2400, "Current/Maximum speed: 2399 Mhz (99%) / 2400 Mhz (100%)"},
                 {2400, 2400, "Speed: 2400 Mhz"},
                 {2401, 2400, "Speed: 2400 Mhz"},
                 {0, 2400, "Speed: 2400 Mhz"},
                 {{}, 2400, "Speed: 2400 Mhz"},
                 {1200, 0, "old titleUnknown"},
                 {1200, "4294967296", "old titleUnknown"}};
    for (const auto& c : cases) {
        leave_another_page();
        open(processor(c.speed, c.maximum));
        EXPECT_EQ(shown(2), c.text);
        EXPECT_EQ(F1.L(4).Caption, "Maker") << "the rows behind it go on";
    }
}

TEST_F(SecCPUPage, WithoutL3CacheOnlyThatRowIsUnknown)
{
    for (const bool at_the_query : {true, false}) {
        open(processor(1600, 3200, 2048, at_the_query ? Value(6144) : Value()));
        if (at_the_query) {
            script.results.erase(Long);
            press("LMenu", 5);
        }
        EXPECT_EQ(script.asked.back(), Short);
        EXPECT_EQ(F1.L(1).Caption, "Fast one");
        EXPECT_EQ(F1.L(8).Caption, "2 MB");
        EXPECT_EQ(F1.L(9).Caption, "Unknown");
    }
}

TEST_F(SecCPUPage, TellsCachesByTheirLengthAndTwoArchitectures)
{
    const struct {
        Value l2, kind;
        const char *l2_text, *kind_text;
    } cases[] = {{0, 0, "Unknown", "x86"},
                 {1536, 5, "1 MB", "Unknown"},
                 {12288, 12, "Unknown", "Unknown"},
                 {"some", "", "Unknown", "Unknown"}};
    for (const auto& c : cases) {
        F1.L(8).Caption = "from another page";
        open(processor(1600, 3200, c.l2, 64, c.kind));
        EXPECT_EQ(F1.L(7).Caption, c.kind_text);
        EXPECT_EQ(F1.L(8).Caption, c.l2_text);
        EXPECT_EQ(F1.L(9).Caption, "64 KB");
    }
}

TEST_F(SecCPUPage, WithoutTheServiceOnlyTheCountIsKnown)
{
    leave_another_page();
    press("LMenu", 5);
    for (const int row : {1, 2, 4, 5, 6, 7, 8, 9})
        EXPECT_EQ(F1.L(row).Caption, "Unknown") << row;
    EXPECT_EQ(shown(3), "Number of cores: 1");
    machine.processors = 0;
    press("LMenu", 5);
    EXPECT_EQ(shown(3), "Number of cores: Unknown");
}

} // namespace
} // namespace ostrelum
