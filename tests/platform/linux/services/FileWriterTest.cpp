#include "platform/linux/services/FileWriter.h"

#include "platform/system/Failure.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace ostrelum::linux_platform {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

TEST(FileWriter, NewFilesAreAsTheUserHasThemAndOldOnesStayAsTheyAre)
{
    const TemporaryFolder folder;
    const mode_t mask = ::umask(022);
    LinuxFileWriter().replace(folder / "new.rtf", "bytes\0\xB7\r\n"s);
    ::umask(mask);
    EXPECT_EQ(content_of(folder / "new.rtf"), "bytes\0\xB7\r\n"s);
    EXPECT_EQ(fs::status(folder / "new.rtf").permissions(), fs::perms(0644));

    const std::string old = folder.file("old.txt", "something longer");
    fs::permissions(old, fs::perms(0640));
    LinuxFileWriter().replace(old, "short");
    EXPECT_EQ(content_of(old), "short");
    EXPECT_EQ(fs::status(old).permissions(), fs::perms(0640));
}

TEST(FileWriter, AFailureLeavesNothingBehind)
{
    const TemporaryFolder folder;
    EXPECT_THROW(LinuxFileWriter().replace(folder / "gone/report.rtf", "x"), Failure);
    folder.file("folder.rtf/inside");
    EXPECT_THROW(LinuxFileWriter().replace(folder / "folder.rtf", "x"), Failure);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / ""), fs::directory_iterator()), 1);
    EXPECT_TRUE(fs::exists(folder / "folder.rtf/inside"));
}

} // namespace
} // namespace ostrelum::linux_platform
