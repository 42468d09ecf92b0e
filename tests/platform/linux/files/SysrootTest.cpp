#include "platform/linux/files/Sysroot.h"

#include "platform/linux/devices/UdevDatabase.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <tuple>

namespace ostrelum::linux_platform {
namespace {

using namespace std::string_literals;
using Text = std::optional<std::string>;

/// The kernel's way of finding files, and the one without its help.
class SysrootTest : public testing::TestWithParam<Sysroot::Resolver> {
protected:
    Sysroot root() const { return Sysroot(folder_ / "root", GetParam()); }
    void link(const std::string& target, const std::string& name) const
    {
        std::filesystem::create_symlink(target, folder_ / ("root/" + name));
    }

    TemporaryFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(Resolvers, SysrootTest, testing::Values(resolve_in_root, resolve_by_hand));

TEST_P(SysrootTest, LetsNoLinkLeadOut)
{
    folder_.file("secret", "outside");
    folder_.file("root/etc/name", "inside");
    folder_.file("root/secret", "the root's own");
    link("../../../../../../secret", "etc/up");
    link("/etc/name", "etc/absolute");
    link("/proc/self/mounts", "etc/mtab");
    link("..", "etc/folder");
    link("loop", "loop");
    const Sysroot machine = root();
    EXPECT_EQ(machine.text("/etc/up"), "the root's own");
    EXPECT_EQ(machine.text("/../../secret"), "the root's own");
    EXPECT_EQ(machine.text("/etc/absolute"), "inside");
    EXPECT_EQ(machine.text("/etc/folder/etc/./folder//etc/name"), "inside");
    EXPECT_EQ(machine.read("/etc/mtab"), Text());
    EXPECT_FALSE(machine.exists("/etc/mtab"));
    EXPECT_EQ(machine.link("/etc/mtab"), "/proc/self/mounts");
    EXPECT_EQ(machine.link("/etc/folder/etc/up"), "../../../../../../secret");
    EXPECT_EQ(machine.link("/etc/name"), Text());
    EXPECT_EQ(machine.read("/loop"), Text());
    EXPECT_FALSE(machine.is_live());
}

TEST_P(SysrootTest, FindsFilesWhileOthersAreRenamed)
{
    folder_.file("root/etc/name", "inside");
    folder_.file("one", "");
    link("../etc/../etc/../etc/name", "etc/up");
    const std::jthread renaming([&](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            std::filesystem::rename(folder_ / "one", folder_ / "other");
            std::filesystem::rename(folder_ / "other", folder_ / "one");
        }
    });
    const Sysroot machine = root();
    int found = 0;
    for (int turn = 0; turn < 10'000; ++turn)
        found += machine.exists("/etc/up") ? 1 : 0;
    EXPECT_EQ(found, 10'000);
}

TEST_P(SysrootTest, OpensNothingButRegularFiles)
{
    folder_.file("root/etc/name", "inside");
    ASSERT_EQ(::mkfifo((folder_ / "root/pipe").c_str(), 0600), 0);
    const Sysroot machine = root();
    for (const char* path : {"/pipe", "/etc", "/", "", "/none", "/etc/name/none"})
        EXPECT_EQ(machine.read(path), Text()) << path;
    EXPECT_EQ(Sysroot("/", GetParam()).read("/dev/zero"), Text());
    EXPECT_TRUE(machine.list("/none").empty());
    EXPECT_TRUE(machine.list("/pipe").empty());
}

TEST_P(SysrootTest, ReadsTheLiveMachine)
{
    const Sysroot live("/", GetParam());
    EXPECT_TRUE(live.is_live());
    // Of no size until it is read, and behind a link that the kernel makes up; in a folder that was
    // listed, and that another one was listed after.
    for (const char* listed : {"/proc", "/proc/self", "/proc/self/fd", "/proc/self/status"}) {
        live.list(listed);
        const std::string status = live.read("/proc/self/status").value_or("");
        EXPECT_NE(status.find("test_platform"), std::string::npos) << listed;
        EXPECT_EQ(live.read("/proc/self/none"), Text()) << listed;
        EXPECT_EQ(live.read("/proc/selfless"), Text()) << listed;
    }
}

TEST(Sysroot, AnswersAsAtOneMoment)
{
    const TemporaryFolder folder;
    folder.file("value", "old");
    std::filesystem::create_symlink("value", folder / "link");
    const Sysroot machine = Sysroot(folder / "").at_one_moment();
    const auto answers = [](const Sysroot& root) {
        return std::tuple(root.read("/value", 2), root.read("/value"), root.link("/link"),
                          root.exists("/new"), root.read("/new"), root.list("/"));
    };
    const auto then = answers(machine);
    folder.file("value", "changed");
    folder.file("new");
    std::filesystem::remove(folder / "link");
    EXPECT_EQ(answers(machine), then);
    EXPECT_EQ(answers(Sysroot(machine, nullptr)),
              std::tuple(Text(), "changed", Text(), true, "", std::vector{"new"s, "value"s}));
}

TEST(Sysroot, GivesOneLine)
{
    const std::pair<std::string, Text> cases[] = {
        {" ACME \n", "ACME"}, {"a\nb", "a"},          {"a\0b\n"s, "a"}, {"", Text()},
        {" \n", Text()},      {"a\xFF\n", "a\uFFFD"}, {"\na", Text()},
    };
    const TemporaryFolder folder;
    for (const auto& [content, expected] : cases) {
        folder.file("file", content);
        EXPECT_EQ(Sysroot(folder / "").text("/file"), expected) << content;
    }
}

TEST(Sysroot, SortsNumbersBySize)
{
    const TemporaryFolder folder;
    for (const char* name :
         {"sda10", "sda2", "input", "sda", "sdb1", "sda02", "99999999999999999999"})
        folder.file(name);
    const std::vector<std::string> sorted = {
        "99999999999999999999", "input", "sda", "sda02", "sda2", "sda10", "sdb1"};
    EXPECT_EQ(Sysroot(folder / "").list("/"), sorted);
}

TEST(UdevRecord, DecodesWhatIsEncoded)
{
    const TemporaryFolder folder;
    folder.file("run/udev/data/b8:0", "S:disk/by-id/x\nE:ID_FS_LABEL=my_usb\n"
                                      "E:ID_FS_LABEL_ENC=my\\x20usb\\xc3\\xa9\\x20\\x20\n"
                                      "E:ID_MODEL_ENC=a\\xZZ\\x4\nE:ID_VENDOR=\nG:systemd\n");
    const UdevRecord record = udev_record(Sysroot(folder / ""), "b8:0");
    EXPECT_EQ(record.text("ID_FS_LABEL"), "my_usb");
    EXPECT_EQ(record.text("ID_FS_LABEL_ENC"), "my usb\u00E9");
    EXPECT_EQ(record.text("ID_MODEL_ENC"), "a\\xZZ\\x4");
    EXPECT_EQ(record.text("ID_VENDOR"), Text());
    EXPECT_EQ(record.text("ID_FS"), Text());
    EXPECT_EQ(udev_record(Sysroot(folder / ""), "b8:1").text("ID_VENDOR"), Text());
}

} // namespace
} // namespace ostrelum::linux_platform
