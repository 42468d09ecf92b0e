#include "platform/linux/ClassQuery.h"

#include "platform/system/Failure.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <map>

namespace ostrelum {
namespace {

/// Volumes of a class made for the test, which notes what it is asked for.
struct Volume {
    std::map<std::string_view, Value> values;
};

std::vector<std::string>& asked()
{
    static std::vector<std::string> names;
    return names;
}

void each_volume(const MachineView&, const ObjectVisitor& visit)
{
    const Volume volumes[] = {
        {{{"Name", "/"}, {"DriveType", 3}, {"Size", 5'000'000'000}, {"FileSystem", "ext4"}}},
        {{{"Name", "/mnt"}, {"DriveType", 2}, {"Size", 400}, {"FileSystem", "FAT32"}}},
        {{{"Name", "/net"}, {"DriveType", 4}}},
    };
    for (const Volume& volume : volumes)
        visit([&](std::size_t index) {
            const auto name = schema_of("Win32_LogicalDisk").properties[index].name;
            asked().emplace_back(name);
            const auto found = volume.values.find(name);
            return found == volume.values.end() ? Value() : found->second;
        });
}

constexpr LinuxClass volumes_class{&schema_of("Win32_LogicalDisk"), each_volume};

class ClassQuery : public testing::Test {
protected:
    ResultSet run(const std::string& wql, const LinuxClass& asked_class = volumes_class)
    {
        asked().clear();
        return run_query(parse_wql(wql), asked_class, machine_);
    }

    std::string names(const std::string& condition)
    {
        std::string all;
        for (const Instance& each : run("Select Name from Win32_LogicalDisk where " + condition))
            all += each["Name"].text() + " ";
        return all;
    }

private:
    MachineView machine_{Sysroot("/"), live_facts(), {}};
};

TEST_F(ClassQuery, GivesTheSchemasOrderAndSpellingAndReadsNothingElse)
{
    const ResultSet result = run("select SIZE, freespace, Name, size from win32_logicaldisk");
    ASSERT_EQ(result.size(), 3U);
    const std::vector<Instance::Property> expected = {
        {"FreeSpace", Value()}, {"Name", "/"}, {"Size", "5000000000"}};
    EXPECT_EQ(result[0].properties(), expected);
    EXPECT_EQ(asked().size(), 9U);
}

TEST_F(ClassQuery, ReadsWhatTheConditionTestsAndEachPropertyOnce)
{
    const ResultSet result =
        run("select FileSystem from x where DriveType = 3 and FileSystem = 'EXT4'");
    ASSERT_EQ(result.size(), 1U);
    EXPECT_EQ(result[0].properties().size(), 1U);
    EXPECT_EQ(asked(),
              (std::vector<std::string>{"DriveType", "FileSystem", "DriveType", "DriveType"}));
}

TEST_F(ClassQuery, AlwaysGivesTheKeys)
{
    const LinuxClass accounts{&schema_of("Win32_UserAccount"),
                              [](const MachineView&, const ObjectVisitor& visit) {
                                  visit([](std::size_t) { return Value("x"); });
                              }};
    const ResultSet result = run("select AccountType from x", accounts);
    ASSERT_EQ(result.size(), 1U);
    const std::vector<Instance::Property> expected = {
        {"AccountType", "x"}, {"Domain", "x"}, {"Name", "x"}};
    EXPECT_EQ(result[0].properties(), expected);
}

TEST_F(ClassQuery, ComparesEachKindInItsOwnWay)
{
    const std::pair<const char*, const char*> cases[] = {
        {"DriveType = 3", "/ "},
        {"drivetype <> '3'", "/mnt /net "},
        {"Size > 1000", "/ "},
        {"Size < '1000'", "/mnt "},
        {"Size >= 5000000000", "/ "},
        {"Size = 400.0", "/mnt "},
        {"FileSystem = 'eXt4'", "/ "},
        {"FileSystem < 'F'", "/ "},
        {"'ext3' < FileSystem", "/ /mnt "},
        {"Size Is Null", "/net "},
        {"Size <> Null", "/ /mnt "},
        {"Not Size Is Null", "/ /mnt "},
        {"Size < Null", ""},
        // What a null is compared with is left open, and so is its opposite.
        {"Not Size > 1000", "/mnt "},
        {"Not (Size > 1000 or DriveType = 2)", ""},
        {"Size > 1000 or DriveType = 4", "/ /net "},
        {"Not (Size > 1000 and DriveType = 3)", "/mnt /net "},
    };
    for (const auto& [condition, expected] : cases)
        EXPECT_EQ(names(condition), expected) << condition;
}

TEST_F(ClassQuery, RefusesWhatTheClassDoesNotHaveEvenWithoutObjects)
{
    const LinuxClass none{&schema_of("Win32_LogicalDisk"),
                          [](const MachineView&, const ObjectVisitor&) {}};
    EXPECT_TRUE(run("select * from x where not (Size = 1)", none).empty());
    for (const char* query : {"select Sizes from x", "select * from x where Sizes = 1",
                              "select * from x where not (Size = 1 or Sizes = 1)",
                              "select * from x where Size = 'big'"})
        EXPECT_THROW(run(query, none), Failure) << query;
}

} // namespace
} // namespace ostrelum
