#include "platform/linux/formats/Placeholder.h"
#include "platform/system/Failure.h"
#include "tests/Split.h"
#include "tests/platform/linux/MadeSysroot.h"

#include <gmock/gmock.h>

namespace ostrelum::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Firmware, OfASourceWithoutTextsIsAnObjectWithoutValues)
{
    const MadeSysroot machine;
    machine.file("sys/firmware/dmi/tables/DMI", std::string(14, '\0'));
    EXPECT_THAT(machine.rows("Select * from Win32_BIOS"), IsEmpty()) << "a table that is cut";
    machine.file("sys/class/dmi/id/board_name", "Default string\n");
    EXPECT_THAT(machine.rows("Select * from Win32_BaseBoard"), ElementsAre("null|null"));
    machine.file("sys/class/dmi/id/bios_version", "2222\n");
    machine.file("sys/class/dmi/id/product_serial", "2222\n");
    EXPECT_THAT(machine.rows("Select Name, SerialNumber from Win32_BIOS"),
                ElementsAre("2222|null"));
}

TEST(Firmware, HasADayOfReleaseOrNone)
{
    const MadeSysroot machine;
    for (const auto& [date, expected] :
         pairs("02/29/2020=20200229000000.000000+000|12/31/99=19991231000000.000000+000|"
               "01/02/03=19030102000000.000000+000|02/29/2021|13/01/2020|00/10/2020|7/31/2013|"
               "07-31-2013|07/31/-013|0a/31/2013|07/31/20131|//")) {
        machine.file("sys/class/dmi/id/bios_date", date);
        EXPECT_THAT(machine.rows("Select ReleaseDate from Win32_BIOS"),
                    ElementsAre("null|" + (expected.empty() ? "null" : expected)))
            << date;
    }
}

TEST(Placeholder, IsTextThatNobodyFilledIn)
{
    for (const char* text :
         {"To Be Filled By O.E.M.", "to be filled by O.E.M.More", "Default string",
          "System Product Name", "Not Specified", " none ", "UNKNOWN", "0123456789",
          "Type2 - Board Product Name1", "xxxx", "..", "-", "<BAD INDEX>", "N/A"})
        EXPECT_TRUE(is_placeholder(text)) << text;
    for (const char* text : {"", "0", "11", "2222", "X570D4U", "F7", "1.0", "P1.20", "00c0ffee",
                             "Nonesuch", "System76", "Default string 2", "\xC3\xA9"})
        EXPECT_FALSE(is_placeholder(text)) << text;
    for (const char* serial : {"0", " 00000000 ", "1111", "none"})
        EXPECT_FALSE(meaningful_serial(serial)) << serial;
    for (const char* serial : {"1", "111", "11112"})
        EXPECT_EQ(meaningful_serial(serial), serial);
}

TEST(LinuxManagementService, GivesNoSumThatDoesNotFitAndNoZoneADayAway)
{
    const MadeSysroot machine;
    const std::string most = " 18446744073709551615 kB\n";
    machine.file("proc/meminfo", "MemTotal:" + most + "MemFree:" + most + "Buffers: 1 kB\n" +
                                     "SwapTotal: 1 kB\nSwapFree: 1 kB\n");
    machine.file(".facts/btime", "/ 1700000000\n");
    const std::string query = "Select FreeVirtualMemory, InstallDate, TotalVirtualMemorySize from "
                              "Win32_OperatingSystem";
    for (const auto& [minutes, zone] :
         pairs("60=231320.000000+060|-180=191320.000000-180|2147483647=221320.000000+000|"
               "-2147483648=221320.000000+000|1440=221320.000000+000")) {
        machine.file(".facts/zone", "1700000000 " + minutes + "\n");
        EXPECT_THAT(machine.rows(query), ElementsAre("0|20231114" + zone + "|0")) << minutes;
    }
}

TEST(LinuxManagementService, RefusesAFolderThatIsNotThereAndClassesThatAreNot)
{
    const TemporaryFolder machine;
    EXPECT_THROW(make_linux_management_service(machine / "none", {}), Failure);
    const auto service = make_linux_management_service(machine / "", {});
    EXPECT_THROW(service->ExecQuery("Select * from Win32_Fan"), Failure);
    EXPECT_THROW(service->ExecQuery("Select Speed from Win32_BIOS"), Failure);
}

} // namespace
} // namespace ostrelum::linux_platform
