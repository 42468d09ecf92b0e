#include "tests/sections/SectionTest.h"

namespace ostrelum {
namespace {

using ::testing::ElementsAre;
using ::testing::Not;

/// What rows show of a machine in which some properties of one class's first object differ, both
/// written as in machine.tsv.
struct Case {
    int section;
    const char *class_name, *changes, *rows;
};

/// "kept" is the value of the page before.
const Case values[] = {
    {2, "UserAccount", "Name= ana ", "2=Home-pc|3=Normal"},
    {2, "UserAccount", "Name=Ana", "2=Second|3=Temp duplicate"},
    {2, "UserAccount", "Name", "2=Home-pc|3=Normal"},
    {2, "UserAccount", "AccountType=2048|PasswordChangeable=TRUE", "3=Internal domain|5=Yes"},
    {2, "UserAccount", "AccountType=4096|PasswordChangeable=0|PasswordExpires=-1",
     "3=Workstation|5=No|6=Yes"},
    {2, "UserAccount", "AccountType=513|PasswordChangeable|PasswordExpires=perhaps",
     "3=Unknown|5=Unknown|6=Unknown"},
    {2, "NetworkLoginProfile", "Caption=ANA", "4=Guest|7=9"},
    {2, "NetworkLoginProfile", "Privileges=1|NumberOfLogons=0",
     "4=Limited|7=0|8=14:05:09 hs.|10=Unknown"},
    {2, "NetworkLoginProfile", "Privileges=two|BadPasswordCount=-1|NumberOfLogons=many",
     "4=Unknown|7=Unknown|10=Unknown"},
    {2, "NetworkLoginProfile", "BadPasswordCount=x|LastLogon=********", "7=Unknown|8=Unknown"},
    {2, "NetworkLoginProfile", "LastLogon=20120315000000", "8=00:00:00 hs."},
    {3, "ComputerSystem", "AutomaticResetBootOption=true|SystemStartupDelay=0",
     "4=Unknown|5=0 second/s"},
    {3, "ComputerSystem", "AutomaticResetBootOption=1|SystemStartupDelay= ", "4=Unknown|5=Unknown"},
    {3, "ComputerSystem", "Domain=MyDomain.LOCAL", "6=Mydomain.local"},
    {4, "OperatingSystem", "Version=10", "2=10, 10|3=Version 3"},
    {4, "OperatingSystem", "ServicePackMajorVersion=0|OSLanguage=1040",
     "2=6.1, 7601|3=None|7=Unknown"},
    {4, "OperatingSystem", "Version|ServicePackMajorVersion", "1=System 7|2=Unknown|3=Unknown"},
    {4, "OperatingSystem", "OSLanguage=2058|NumberOfProcesses=0", "7=Español - México|9=Unknown"},
    {4, "OperatingSystem", "OSLanguage=14346|InstallDate=", "7=Español - Uruguay|9=52|10=Unknown"},
    {5, "Processor", "L2CacheSize=0|Architecture=0", "1=Fast one|7=x86|8=Unknown|9=6 MB"},
    {5, "Processor", "L2CacheSize=12288|L3CacheSize=some|Architecture=5",
     "7=Unknown|8=Unknown|9=Unknown"},
    {8, "BIOS", "SerialNumber=   ", "1=Boot 7|2=Maker Inc.|4=15/03/2012|5=Unknown"},
    {8, "BIOS", "Name|ReleaseDate", "1=Unknown|4=Unknown"},
    {8, "BIOS", "ReleaseDate=20120231000000", "4=kept|5=7"},
    {9, "VideoController", "CurrentBitsPerPixel",
     "3=1280 x 1024 pixels, (2) bits, 60 Hz|6=Card A|11=03/08/2011"},
    {9, "VideoController", "CurrentHorizontalResolution=0|AdapterRAM=1610612736",
     "3=Unknown|7=1 GB"},
    {9, "VideoController", "CurrentRefreshRate=0|AdapterRAM=1048575", "3=Unknown|7=Unknown"},
    {9, "VideoController", "AdapterRAM=2097151.0|DriverDate=unknown", "7=1 MB|11=kept"},
    {10, "PointingDevice", "DeviceInterface=2|Handedness=0", "4=Mouse|7=Unknown|8=Unknown"},
    {10, "PointingDevice", "DeviceInterface=160|Handedness=1", "7=Unknown|8=Not applicable"},
    {10, "PointingDevice", "DeviceInterface=162 |Handedness=03", "7=USB|8=Unknown"},
    {10, "Keyboard", "Description", "1=Keys|2=Unknown|7=USB"},
    {13, "Battery", "DesignVoltage=12450|Name=\016Cell\016 6",
     "2=Boards|5=Card|6=Sounds|8=Cell 6|9=B-1|10=~ 12.4 V|11=87%|12=01:35 hs."},
    {13, "Battery", "DesignVoltage=0|EstimatedChargeRemaining=0|EstimatedRunTime=0",
     "10=~ 0 V|11=0%|12=00:00 hs."},
    {13, "Battery", "DesignVoltage=12350|EstimatedChargeRemaining= |EstimatedRunTime=1500",
     "10=~ 12.4 V|11=Unknown|12=01:00 hs."},
    {13, "Battery", "DesignVoltage=12.5|EstimatedRunTime=1966079", "10=kept|12=07:59 hs."},
    {13, "Battery", "DesignVoltage|EstimatedRunTime=1966080", "10=Unknown|12=kept"},
};

/// Where the title depends on the value. "old title" is that of the page before.
const Case titles_and_values[] = {
    {4, "OperatingSystem", "FreeVirtualMemory=1024",
     "11=Virtual memory in use: 4095 MB (99%) / 4096 MB (100%)"},
    {4, "OperatingSystem", "FreeVirtualMemory=1023", "11=Total virtual memory: 4096 MB"},
    {4, "OperatingSystem", "TotalVirtualMemorySize=1023|FreeVirtualMemory=0",
     "11=old titleUnknown"},
    {4, "OperatingSystem", "TotalVirtualMemorySize", "11=old titleUnknown"},
    {5, "Processor", "CurrentClockSpeed=3199",
     "2=Current/Maximum speed: 3199 Mhz (99%) / 3200 Mhz (100%)"},
    {5, "Processor", "CurrentClockSpeed", "2=Speed: 3200 Mhz"},
    {5, "Processor", "CurrentClockSpeed=3200", "2=Speed: 3200 Mhz"},
    {5, "Processor", "MaxClockSpeed=4294967296", "2=old titleUnknown|4=Manufacturer: Maker"},
    {5, "Processor", "MaxClockSpeed=0", "2=old titleUnknown"},
    {9, "VideoController", "MinRefreshRate", "4=Maximum update rate: 75 Hz"},
    {9, "VideoController", "MaxRefreshRate", "4=Minimum update rate: 56 Hz"},
    {9, "VideoController", "MinRefreshRate=75", "4=Maximum update rate: 75 Hz"},
    {9, "VideoController", "MinRefreshRate=0|MaxRefreshRate",
     "4=Update rate minimum and maximum: Unknown"},
    {9, "VideoController", "AdapterRAM=4294967295",
     "4=Update rate minimum and maximum: 56 Hz - 75 Hz|7=Memory size: 3 GB"},
};

class Rows : public SectionTest {
protected:
    /// Opens the page of each case; `seen` takes what is to be compared from a row.
    void expect(std::span<const Case> cases, std::string (*seen)(int))
    {
        const auto usual = has;
        for (const Case& c : cases) {
            has = usual;
            change(has.at(std::string("Win32_") + c.class_name),
                   recorded_object(c.changes, '|').properties());
            open(c.section);
            const Instance expected = recorded_object(c.rows, '|');
            for (const auto& [number, text] : expected.properties()) {
                const int row = std::stoi(number);
                EXPECT_EQ(seen(row), text.text()) << c.class_name << " " << c.changes;
                EXPECT_EQ(F1.L(row).ToolTipText, F1.L(row).Caption) << c.changes;
                EXPECT_EQ(F1.L(row).Left, F1.LT(row).Left + F1.LT(row).Width) << c.changes;
            }
        }
        has = usual;
    }
    static std::string value(int row) { return F1.L(row).Caption; }
    static std::string shown_row(int row) { return shown(row); }
};

TEST_F(Rows, TellOneValueAtATime)
{
    expect(values, value);
}

TEST_F(Rows, ChooseTheirTitlesByTheirValues)
{
    expect(titles_and_values, shown_row);
}

TEST_F(Rows, TakeFiguresFromTheSystemToo)
{
    const struct {
        std::uint32_t processors;
        int buttons;
        const char *sign, *speed, *rows;
    } cases[] = {
        {1, 0, ".", "MaxClockSpeed=800", "3=800 Mhz"},
        {1, 1, ".", "MaxClockSpeed=1000", "3=1 Ghz"},
        {1, 2, ",", "MaxClockSpeed=2394", "3=2,39 Ghz"},
        {2, 16, ".", "MaxClockSpeed=800", "3=0.8 Ghz (2 CPUs)"},
        {1, 3, ".", "MaxClockSpeed=12345", "3=12.3 Ghz"},
        {2, 3, ".", "MaxClockSpeed=0", "3=Unknown"},
        {4, 3, ",", "MaxClockSpeed", "3=Unknown"},
    };
    for (const auto& c : cases) {
        system_api.processors = c.processors;
        system_api.metrics[mouse_button_count] = c.buttons;
        regional.sign = c.sign;
        expect(std::array{Case{1, "Processor", c.speed, c.rows}}, value);
        open(10);
        EXPECT_EQ(F1.L(6).Caption, c.buttons < 2 ? "Unknown" : std::to_string(c.buttons));
    }
    open(13);
    EXPECT_EQ(F1.L(10).Caption, "~ 12,5 V");
    clock.milliseconds = 29U * 24 * 60 * 60 * 1000;
    open(2);
    EXPECT_EQ(shown(9), "Usage time: Unknown");
    system_api.processors = 0;
    open(5);
    EXPECT_EQ(shown(3), "Number of cores: Unknown");
}

TEST_F(Rows, TakeTheBoardAndTheLicenceFromTheRegistry)
{
    const std::string board = "HKEY_CURRENT_USER\\Software\\Install\\Ostrelum\\Mainboard\\Full";
    store.values[board] = " Board of mine ";
    open(13);
    EXPECT_EQ(shown(1), "Motherboard name: Board of mine");
    store.values[board] = 990U;
    open(1);
    EXPECT_EQ(shown(12), "Motherboard: 990");
    std::vector<std::uint8_t> key(164);
    key[52] = 1;
    registry.values[{"SOFTWARE\\MICROSOFT\\Windows NT\\CurrentVersion", "DigitalProductId"}] = key;
    open(4);
    EXPECT_EQ(shown(6), "License code: BBBBB-BBBBB-BBBBB-BBBBB-BBBBC");
}

TEST_F(Rows, OfTheSummaryTakeSumsOfWholeMegabytes)
{
    open(3);
    open(1);
    EXPECT_THAT(shown(3, 6),
                ElementsAre("Processor speed: 3.2 Ghz", "RAM: 4 GB", "Graphics card memory: 256 MB",
                            "Total free space: 808.6 GB"));
    EXPECT_THAT(shown(10, 11), ElementsAre("Operating system: System 7", "Graphics card: Card A"));
    const std::string disks = "Win32_LogicalDisk where DriveType = 3";
    EXPECT_THAT(script.asked, ElementsAre("Select MaxClockSpeed from Win32_Processor",
                                          "Select Capacity from Win32_PhysicalMemory",
                                          "Select AdapterRAM, Name from Win32_VideoController",
                                          "Select Freespace from " + disks,
                                          "Select Caption from Win32_OperatingSystem"));
    const auto some = [](const char* name, const Value& bytes) {
        return Instance(Changes{{name, bytes}});
    };
    const std::string three_quarters_over = std::to_string((100 << 20) + (3 << 18));
    for (const auto& [name, property] :
         {std::pair(std::string("Win32_PhysicalMemory"), "Capacity"), {disks, "Freespace"}})
        has[name] = {some(property, three_quarters_over), some(property, {}), Instance(),
                     some(property, three_quarters_over)};
    open(1);
    EXPECT_EQ(F1.L(4).Caption, "200 MB");
    EXPECT_EQ(F1.L(6).Caption, "200 MB");
    for (const auto& [megabytes, text] : pairs("0=Unknown|9=9 MB|10000000=9.536 TB")) {
        has[disks] = {some("Freespace", std::to_string(std::stoll(megabytes) << 20))};
        open(1);
        EXPECT_EQ(F1.L(6).Caption, text) << megabytes;
    }
}

TEST_F(Rows, GoOnWithAnOlderSystemsPropertiesAndKeepWhatWasRead)
{
    const struct {
        int section;
        const char *newest, *class_name, *other;
        int newest_row, other_row, row_behind;
        const char* behind;
    } cases[] = {{4, "OSArchitecture", "Win32_OperatingSystem", "SerialNumber", 4, 5, 9, "52"},
                 {5, "L3CacheSize", "Win32_Processor", "L2CacheSize", 9, 8, 6, "Socket 7"}};
    for (const auto& c : cases) {
        lacking = c.newest;
        open(c.section);
        EXPECT_EQ(F1.L(c.newest_row).Caption, "Unknown");
        EXPECT_EQ(F1.L(c.row_behind).Caption, c.behind);
        EXPECT_NE(F1.L(c.other_row).Caption, "Unknown");
        lacking = "none";
        change(has[c.class_name], {{c.other, {}}});
        open(c.section);
        EXPECT_THAT(script.asked.back(), Not(::testing::HasSubstr(c.newest)))
            << "a null in the walk asks anew";
        EXPECT_EQ(F1.L(c.other_row).Caption, "Unknown");
        EXPECT_EQ(F1.L(c.newest_row).Caption, "Unknown");
        EXPECT_EQ(F1.L(c.row_behind).Caption, c.behind) << "what can be read is shown";
    }
}

TEST_F(Rows, AreUnknownWithoutAService)
{
    const std::pair<int, int> unknown_rows[] = {{1, 7}, {2, 8}, {3, 6},  {4, 11}, {5, 8},  {6, 8},
                                                {7, 1}, {8, 5}, {9, 10}, {10, 7}, {13, 10}};
    has.clear();
    shell_gone = true;
    for (const auto& [section, count] : unknown_rows) {
        open(section);
        const auto is_unknown = [](const std::string& row) { return row.ends_with("Unknown"); };
        EXPECT_EQ(std::ranges::count_if(shown(1, 12), is_unknown), count) << section;
    }
    has["Win32_OperatingSystem"] = {};
    open(4);
    EXPECT_THAT(shown(1, 3),
                ElementsAre("Name: Unknown", "Version and build: ", "Service pack: None"));
}

} // namespace
} // namespace ostrelum
