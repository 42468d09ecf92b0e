#include "platform/linux/Recorder.h"
#include "platform/linux/Facts.h"
#include "platform/linux/HardwareDatabase.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

/// What no file tells, asked twice: of a machine that has every fact, and of its recording.
TEST(Recorder, KeepsFactsSoThatTheyAreToldAgain)
{
    const TemporaryFolder folder;
    const std::pair<const char*, const char*> lists[] = {
        {"statvfs", "/mnt/my disk 512 7 6 5\n"},
        {"btime", "/ 1795383844\n"},
        {"uname", "Linux vm 6.1.0 #1 SMP aarch64 GNU/Linux\n"},
        {"id", "uid=70001(alice) gid=1000(alice)\n"},
        {"env", "LANG=es_AR.UTF-8\n"},
        {"modes", "card0-DP-1 1280 1024 32 75025\n"},
        {"vram", "0000:01:00.0 1073741824\n"},
        {"password", "70001 1 0\n7 0 1\n"},
        {"login", "70001 1795383000\n"},
        {"passwd", "alice:x:70001:100:::\n"},
        {"zone", "1795383844 -180\n1795383000 60\n"},
        {"hwdb", "usb:v046D ID_VENDOR_FROM_DATABASE=Logitech, Inc.\n"},
    };
    for (const auto& [list, lines] : lists)
        folder.file(std::string("machine/.facts/") + list, lines);

    const auto recorder = std::make_shared<Recorder>(Sysroot(folder / "machine"));
    for (const char* name : {"machine", "recording"}) {
        const Sysroot files(folder / name);
        const auto facts = witnessed_facts(recorded_facts(files), recorder);
        EXPECT_EQ(facts->space("/mnt/my disk"), (VolumeSpace{512, 7, 6, 5}));
        EXPECT_EQ(facts->birth_time("/"), 1795383844);
        EXPECT_EQ(facts->processor_kind(), "aarch64");
        EXPECT_EQ(facts->user_id(), 70001U);
        EXPECT_EQ(facts->variable("LANG"), "es_AR.UTF-8");
        EXPECT_EQ(facts->display_mode("card0-DP-1"), (DisplayMode{1280, 1024, 32, 75025}));
        EXPECT_EQ(facts->graphics_memory("0000:01:00.0"), 1073741824U);
        const auto policy = facts->password_policy(70001);
        EXPECT_TRUE(policy && policy->expires && !policy->changeable);
        EXPECT_FALSE(facts->password_policy(1));
        EXPECT_EQ(facts->login_time(70001), 1795383000);
        EXPECT_EQ(facts->directory_account(70001), "alice:x:70001:100:::");
        EXPECT_EQ(facts->utc_offset(1795383844), -180);
        EXPECT_EQ(facts->utc_offset(1795383000), 60);
        EXPECT_EQ(facts->utc_offset(0), 0);
        const HardwareDatabase names(Sysroot(files, recorder));
        EXPECT_EQ(names.text("usb:v046D", "ID_VENDOR_FROM_DATABASE"), "Logitech, Inc.");
        if (!std::filesystem::exists(folder / "recording"))
            write_machine(recorder->machine(), folder / "recording");
    }
}

/// A file is kept where the links lead; a file behind one that leads out of the root is none.
TEST(Recorder, KeepsLinksAsLinks)
{
    const TemporaryFolder folder;
    folder.file("machine/devices/bus/disk/model", "SSD\n");
    folder.file("machine/devices/bus/maker", "ACME\n");
    folder.file("machine/unread", "secret");
    std::filesystem::create_directory(folder / "machine/class");
    std::filesystem::create_symlink("../devices/bus/disk", folder / "machine/class/sda");
    std::filesystem::create_symlink("/../../unread", folder / "machine/class/out");
    const auto recorder = std::make_shared<Recorder>(Sysroot(folder / "machine"));
    const Sysroot machine(Sysroot(folder / "machine"), recorder);
    EXPECT_EQ(machine.text("/class/sda/../maker"), "ACME");
    EXPECT_EQ(machine.read_piece("/class/sda/model", 1, 2), "SD");
    EXPECT_EQ(machine.list("/class").size(), 2U);
    write_machine(recorder->machine(), folder / "recording");
    const Sysroot recording(folder / "recording");
    EXPECT_EQ(recording.link("/class/sda"), "../devices/bus/disk");
    EXPECT_EQ(recording.text("/class/sda/../maker"), "ACME");
    EXPECT_EQ(recording.read_piece("/class/sda/model", 1, 2), "SD");
    EXPECT_TRUE(recording.exists("/class/out"));
    EXPECT_FALSE(recording.exists("/unread"));
}

} // namespace
} // namespace ostrelum
