#include "tests/Stage.h"
#include "tests/sections/PageRows.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* Long =
    "Select Caption, FreeVirtualMemory, InstallDate, NumberOfProcesses, OSLanguage, "
    "RegisteredUser, SerialNumber, ServicePackMajorVersion, TotalVirtualMemorySize, Version, "
    "OSArchitecture from Win32_OperatingSystem";
constexpr const char* Short =
    "Select Caption, FreeVirtualMemory, InstallDate, NumberOfProcesses, OSLanguage, "
    "RegisteredUser, SerialNumber, ServicePackMajorVersion, TotalVirtualMemorySize, Version from "
    "Win32_OperatingSystem";

class SecOSPage : public Stage {
protected:
    SecOSPage() { start_program(); }

    using Changes = std::vector<Instance::Property>;

    /// A system, but for some of its properties.
    static Instance system(const Changes& changes = {})
    {
        Changes all{{"Caption", " System 7 "},
                    {"FreeVirtualMemory", "3145728"},
                    {"InstallDate", "20120315140509.000000-180"},
                    {"NumberOfProcesses", 52},
                    {"OSLanguage", 11274},
                    {"RegisteredUser", "Ana"},
                    {"SerialNumber", "00-11"},
                    {"ServicePackMajorVersion", 3},
                    {"TotalVirtualMemorySize", "4194304"},
                    {"Version", "6.1.7601"},
                    {"OSArchitecture", "64-bit"}};
        for (const auto& [name, value] : changes) {
            std::ranges::find(all, name, &Instance::Property::first)->second = value;
        }
        return Instance(std::move(all));
    }
    void open(const Changes& changes)
    {
        script.results = {{Long, {system(changes)}}, {Short, {system(changes)}}};
        press("LMenu", 4);
    }
};

TEST_F(SecOSPage, ShowsTheSystem)
{
    std::vector<std::uint8_t> value(164);
    value[52] = 1;
    registry.values[{"SOFTWARE\\MICROSOFT\\Windows NT\\CurrentVersion", "DigitalProductId"}] =
        value;
    leave_another_page();
    F1.Line1.Visible = F1.Laviso.Visible = true;
    script.results[Long] = {system(), system({{"Caption", "Second"}})};
    press("LMenu", 4);
    EXPECT_EQ(F1.Titulo.Caption, "Operating system");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Name: System 7", "Version and build: 6.1, 7601",
                            "Service pack: Version 3", "Type: 64-bit", "Serial number: 00-11",
                            "License code: BBBBB-BBBBB-BBBBB-BBBBB-BBBBC",
                            "Language: Español - Argentina", "Registered by: Ana",
                            "Number of processes: 52",
                            "Date of installation: 15/03/2012 a las 14:05:09 hs.",
                            "Virtual memory in use: 1024 MB (25%) / 4096 MB (100%)", ""));
    EXPECT_THAT(script.asked.back(), Long) << "the short form is not needed";
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_FALSE(F1.LT(1).Font.Italic || F1.LT(8).Font.Italic);
    EXPECT_FALSE(F1.Line1.Visible || F1.Laviso.Visible);
    EXPECT_TRUE(F1.Timer1.Enabled);
}

TEST_F(SecOSPage, FallsToTheShortFormAtTheQueryOrInTheWalk)
{
    for (const bool at_the_query : {true, false}) {
        open({{"SerialNumber", at_the_query ? Value("00-11") : Value()}});
        if (at_the_query) {
            script.results.erase(Long);
            press("LMenu", 4);
        }
        EXPECT_EQ(script.asked.back(), Short);
        EXPECT_EQ(F1.L(1).Caption, "System 7");
        EXPECT_EQ(F1.L(2).Caption, "6.1, 7601");
        EXPECT_EQ(F1.L(4).Caption, "Unknown");
        EXPECT_EQ(F1.L(5).Caption, at_the_query ? "00-11" : "Unknown");
        EXPECT_EQ(F1.L(9).Caption, "52") << "what can be read is shown";
    }
}

TEST_F(SecOSPage, WithoutTheServiceAllIsUnknown)
{
    leave_another_page();
    press("LMenu", 4);
    for (int row = 1; row <= 11; ++row)
        EXPECT_EQ(F1.L(row).Caption, "Unknown") << row;
    EXPECT_EQ(F1.LT(11).Caption, "old title");
    EXPECT_TRUE(F1.Timer1.Enabled);
}

TEST_F(SecOSPage, WithoutASystemVersionAndServicePackHaveTheirOwnTexts)
{
    script.results[Long] = {};
    press("LMenu", 4);
    EXPECT_THAT(shown(1, 3),
                ElementsAre("Name: Unknown", "Version and build: ", "Service pack: None"));
}

TEST_F(SecOSPage, TellsOneValueAtATime)
{
    const struct {
        const char* property;
        Value value;
        int row;
        const char* text;
    } cases[] = {{"Version", "10", 2, "10, 10"},
                 {"ServicePackMajorVersion", 0, 3, "None"},
                 {"OSLanguage", 1040, 7, "Unknown"},
                 {"OSLanguage", 1043, 7, "Nederlandse – Nederland"},
                 {"OSLanguage", 9, 7, "English"},
                 {"OSLanguage", 14346, 7, "Español - Uruguay"},
                 {"NumberOfProcesses", 0, 9, "Unknown"},
                 {"NumberOfProcesses", "many", 9, "Unknown"},
                 {"InstallDate", "", 10, "Unknown"},
                 {"InstallDate", "20120231140509", 10, "Unknown"},
                 {"InstallDate", "20120315******", 10, "Unknown"},
                 {"Caption", "  ", 1, "Unknown"}};
    for (const auto& c : cases) {
        open({{c.property, c.value}});
        EXPECT_EQ(F1.L(c.row).Caption, c.text) << c.property << " " << c.value.text();
    }
}

TEST_F(SecOSPage, TellsVirtualMemoryInTheFormThatSaysMost)
{
    const struct {
        Value total, free;
        const char* text;
    } cases[] = {{"4194304", "3145728", "Virtual memory in use: 1024 MB (25%) / 4096 MB (100%)"},
                 {"4194304", "1023", "Total virtual memory: 4096 MB"},
                 {"4194304", "1024", "Virtual memory in use: 4095 MB (99%) / 4096 MB (100%)"},
                 {"4194304", "4194304", "Total virtual memory: 4096 MB"},
                 {"4194304", {}, "Total virtual memory: 4096 MB"},
                 {"1023", "0", "old titleUnknown"},
                 {{}, "1024", "old titleUnknown"}};
    for (const auto& c : cases) {
        leave_another_page();
        open({{"TotalVirtualMemorySize", c.total}, {"FreeVirtualMemory", c.free}});
        EXPECT_EQ(shown(11), c.text);
    }
}

} // namespace
} // namespace ostrelum
