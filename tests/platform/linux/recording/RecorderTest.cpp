#include "platform/linux/recording/Recorder.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

/// A file is kept where the links lead; a file behind one that leads out of the root is none.
TEST(Recorder, KeepsLinksAsLinks)
{
    const TemporaryFolder folder;
    folder.file("machine/devices/bus/disk/model", "SSD\n");
    folder.file("machine/devices/bus/maker", "ACME\n");
    folder.file("machine/unread", "secret");
    folder.file("machine/.facts/id", "uid=1000 of the machine");
    std::filesystem::create_symlink("/", folder / "machine/root");
    std::filesystem::create_symlink("..", folder / "machine/devices/root");
    std::filesystem::create_directory(folder / "machine/class");
    std::filesystem::create_symlink("../devices/bus/disk", folder / "machine/class/sda");
    std::filesystem::create_symlink("/../../unread", folder / "machine/class/out");
    const auto recorder = std::make_shared<Recorder>(Sysroot(folder / "machine"));
    const Sysroot machine(Sysroot(folder / "machine"), recorder);
    EXPECT_EQ(machine.text("/class/sda/../maker"), "ACME");
    EXPECT_EQ(machine.read_piece("/class/sda/model", 1, 2), "SD");
    EXPECT_EQ(machine.list("/class").size(), 2U);
    for (const char* root : {"/", "/root", "/devices/root"}) {
        EXPECT_FALSE(machine.text(root));
        EXPECT_TRUE(machine.exists(root));
    }
    EXPECT_EQ(machine.list("/root/class").size(), 2U);
    // The answers of the recording stand where others stand on a recorded machine.
    EXPECT_EQ(machine.list("/root").size(), 5U);
    machine.report_answer("id", "uid=0", "");
    write_recording(recorder->recording(), folder / "recording");
    const Sysroot recording(folder / "recording");
    EXPECT_EQ(recording.link("/class/sda"), "../devices/bus/disk");
    EXPECT_EQ(recording.text("/class/sda/../maker"), "ACME");
    EXPECT_EQ(recording.read_piece("/class/sda/model", 1, 2), "SD");
    EXPECT_TRUE(recording.exists("/class/out"));
    EXPECT_EQ(recording.link("/root"), "/");
    EXPECT_EQ(recording.link("/devices/root"), "..");
    EXPECT_EQ(recording.text("/unread"), std::nullopt);
    EXPECT_EQ(recording.read("/.facts/id"), "uid=0\n");
}

} // namespace
} // namespace ostrelum::linux_platform
