#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/Placeholder.h"
#include "platform/system/Failure.h"
#include "tests/Split.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

using namespace std::string_literals;

/// What a class tells of a machine: the values of each object in the schema's order.
std::vector<std::vector<Value>> objects(const TemporaryFolder& machine, const std::string& name)
{
    const auto service = make_linux_management_service(machine / "", {});
    std::vector<std::vector<Value>> all;
    for (const Instance& each : service->ExecQuery("Select * from " + name)) {
        all.emplace_back();
        for (const auto& [property, value] : each.properties())
            all.back().push_back(value);
    }
    return all;
}

using Objects = std::vector<std::vector<Value>>;

const Value null;

/// Firmware, machine and board with a serial number of zeros and a placeholder.
const std::string table = "\0\x09\0\0\1\2\0\xF0\3Maker\0V 1.0\0"
                          "01/02/2003\0\0"
                          "\1\x08\1\0\1\2\0\3Maker\0Model\0"
                          "0000000\0\0"
                          "\2\x06\2\0\1\2Board Co.\0Default string\0\0"s;

TEST(Firmware, IsReadFromTheKernelsFilesFirst)
{
    const TemporaryFolder machine;
    const std::pair<const char*, const char*> files[] = {
        {"bios_vendor", "Firmware Works \n"}, {"bios_version", "N2H (1.56 )\n"},
        {"bios_date", "07/31/2013\n"},        {"product_serial", "To Be Filled By O.E.M.\n"},
        {"board_vendor", "Quill\n"},          {"board_name", "Q-7\n"},
    };
    for (const auto& [name, content] : files)
        machine.file("sys/class/dmi/id/"s + name, content);
    machine.file("sys/firmware/dmi/tables/DMI", table);
    EXPECT_EQ(objects(machine, "Win32_BIOS"),
              (Objects{{"Firmware Works", "N2H (1.56 )", "20130731000000.000000+000", null,
                        "N2H (1.56 )"}}));
    EXPECT_EQ(objects(machine, "Win32_BaseBoard"), (Objects{{"Quill", "Q-7"}}));
}

TEST(Firmware, IsReadFromItsTableAlone)
{
    const TemporaryFolder machine;
    machine.file("sys/firmware/dmi/tables/DMI", table);
    EXPECT_EQ(objects(machine, "Win32_BIOS"),
              (Objects{{"Maker", "V 1.0", "20030102000000.000000+000", null, "V 1.0"}}));
    EXPECT_EQ(objects(machine, "Win32_BaseBoard"), (Objects{{"Board Co.", null}}));
    machine.file("sys/firmware/dmi/tables/DMI", table.substr(0, 14));
    EXPECT_EQ(objects(machine, "Win32_BIOS"), Objects());
}

TEST(Firmware, IsReadFromAMainframe)
{
    const TemporaryFolder machine;
    machine.file("proc/sysinfo", "Manufacturer:         IBM\nType:                 2964\n"
                                 "Model:                400              N96\n");
    EXPECT_EQ(objects(machine, "Win32_BaseBoard"), (Objects{{"IBM", "400              N96"}}));
    EXPECT_EQ(objects(machine, "Win32_BIOS"), Objects());
}

TEST(Firmware, OfASourceWithoutTextsIsAnObjectWithoutValues)
{
    const TemporaryFolder machine;
    machine.file("sys/class/dmi/id/board_name", "Default string\n");
    EXPECT_EQ(objects(machine, "Win32_BaseBoard"), (Objects{{null, null}}));
}

TEST(Firmware, HasADayOfReleaseOrNone)
{
    for (const auto& [date, expected] :
         pairs("02/29/2020=20200229000000.000000+000|12/31/99=19991231000000.000000+000|"
               "01/02/03=19030102000000.000000+000|02/29/2021|13/01/2020|00/10/2020|7/31/2013|"
               "07-31-2013|07/31/-013|0a/31/2013|07/31/20131|//")) {
        const TemporaryFolder machine;
        machine.file("sys/class/dmi/id/bios_date", date);
        EXPECT_EQ(objects(machine, "Win32_BIOS").at(0).at(2), expected.empty() ? null : expected)
            << date;
    }
}

TEST(Placeholder, IsTextThatNobodyFilledIn)
{
    for (const char* text :
         {"To Be Filled By O.E.M.", "to be filled by O.E.M.More", "Default string",
          "System Product Name", "Not Specified", " none ", "UNKNOWN", "0123456789", "0",
          "00000000", "1111111", "xxxx", "..", "-", "<BAD INDEX>", "N/A"})
        EXPECT_TRUE(is_placeholder(text)) << text;
    for (const char* text : {"", "1", "11", "X570D4U", "F7", "1.0", "P1.20", "00c0ffee", "Nonesuch",
                             "System76", "Default string 2", "\xC3\xA9"})
        EXPECT_FALSE(is_placeholder(text)) << text;
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
} // namespace ostrelum
