#include "platform/wql/ClassQuery.h"

#include "platform/system/Failure.h"

#include <gtest/gtest.h>
#include <map>

namespace ostrelum {
namespace {

using Names = std::vector<std::string>;

/// The names of the properties that a volume made for the test was asked for.
Names asked;

void one_volume(const ObjectVisitor& visit)
{
    static const std::map<std::string_view, Value> values = {
        {"Name", "/"}, {"DriveType", 3}, {"Size", 5'000'000'000}, {"FileSystem", "ext4"}};
    visit([](std::size_t index) {
        const auto name = schema_of("Win32_LogicalDisk").properties[index].name;
        asked.emplace_back(name);
        const auto found = values.find(name);
        return found == values.end() ? Value() : found->second;
    });
}

ResultSet run(const std::string& wql, const ObjectSource& objects = one_volume)
{
    asked.clear();
    return run_query(parse_wql(wql), schema_of("Win32_LogicalDisk"), objects);
}

TEST(ClassQuery, GivesTheSchemasOrderAndSpellingAndReadsNothingElse)
{
    const ResultSet result =
        run(" \r\n\tsELECT  SIZE, freespace ,\nName,size from win32_logicaldisk ");
    ASSERT_EQ(result.size(), 1U);
    const std::vector<Instance::Property> expected = {
        {"FreeSpace", Value()}, {"Name", "/"}, {"Size", "5000000000"}};
    EXPECT_EQ(result[0].properties(), expected);
    EXPECT_EQ(asked, (Names{"FreeSpace", "Name", "Size"}));
}

TEST(ClassQuery, ReadsWhatTheConditionTestsAndEachPropertyOnce)
{
    const auto found = run("select FileSystem from x where DriveType = 3 and FileSystem = 'EXT4'");
    EXPECT_EQ(found.at(0).properties().size(), 1U);
    EXPECT_EQ(asked, (Names{"DriveType", "FileSystem"}));
    EXPECT_TRUE(run("select*from x where DriveType = 2 and Size = 1").empty());
    EXPECT_EQ(asked, Names{"DriveType"});
    // Letters beyond ASCII come behind it, whatever sign the machine's characters have.
    EXPECT_EQ(run("select Name from x where FileSystem < '\u00e9'").size(), 1U);
}

TEST(ClassQuery, RefusesWhatTheClassDoesNotHaveEvenWithoutObjects)
{
    const auto none = [](const ObjectVisitor&) {};
    EXPECT_TRUE(run("select * from x where not (Size = 1)", none).empty());
    for (const char* query : {"select Sizes from x", "select * from x where Sizes = 1",
                              "select * from x where not (Size = 1 or Sizes = 1)",
                              "select * from x where Size = 'big'"})
        EXPECT_THROW(run(query, none), Failure) << query;
}

} // namespace
} // namespace ostrelum
