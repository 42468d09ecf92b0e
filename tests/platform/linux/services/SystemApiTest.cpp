#include "platform/linux/services/SystemApi.h"

#include "platform/linux/formats/MouseButtons.h"
#include "platform/linux/services/Clock.h"
#include "platform/system/Failure.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

namespace ostrelum::linux_platform {
namespace {

namespace fs = std::filesystem;

const InputDevice keyboard_64{"402000002 3803078f800d001 feffffdfffefffff fffffffffffffffe", "0",
                              "0", "0"};
const InputDevice keyboard_32{"4 2000002 3803078 f800d001 feffffdf ffefffff ffffffff fffffffe", "0",
                              "0", "0"};
const InputDevice mouse_64{"1f0000 0 0 0 0\n", "903\n", "0\n", "0\n"};
const InputDevice mouse_32{"70000 0 0 0 0 0 0 0 0", "103", "0", "0"};

TEST(SystemApi, CountsTheButtonsOfPointers)
{
    const std::pair<std::vector<InputDevice>, int> cases[] = {
        {{}, 0},
        {{keyboard_64}, 0},
        {{keyboard_64, mouse_64}, 5},
        {{mouse_32, keyboard_32}, 3},
        {{keyboard_64, {"70000 0 0 0 0", "900", "3", "0"}}, 3},
        {{keyboard_64, {"e520 10000 0 0 0 0", "0", "260800000000003", "5"}}, 2},
        {{keyboard_64, {"400 0 0 0 0 0", "0", "3", "2"}}, 0},
        {{keyboard_64, {"1f0000 0 0 0 0", "100", "0", "0"}}, 0},
        {{keyboard_64, {"ff0000 0 0 0 0", "3", "0", "0"}, mouse_64}, 8},
        {{keyboard_64, {"zz0000 0 0 0 0", "3", "0", "0"}}, 0},
        {{keyboard_64, {"11ffffffffffffffff 0 0 0 0", "3", "3", "4"}}, 0},
    };
    for (const auto& [devices, buttons] : cases)
        EXPECT_EQ(mouse_buttons(devices), buttons) << (devices.empty() ? "" : devices.back().key);
}

TEST(SystemApi, FindsVariablesInAnyCase)
{
    const passwd* const account = ::getpwuid(::getuid());
    const std::string own = account == nullptr ? "" : account->pw_name;
    const std::tuple<Environment, const char*, std::string> cases[] = {
        {{{"Path", "1"}, {"PATH", "2"}}, "PATH", "2"},
        {{{"path", ""}, {"Path", "c\xE9"}}, "PATH", "c\uFFFD"},
        {{{"USERNAME", "no such account"}, {"USER", "bob"}}, "UserName", own},
        {{{"UserName", ""}, {"user", own}, {"LOGNAME", "cid"}}, "username", own},
        {{}, "UserName", own},
        {{{"USER", "bob"}}, "User", "bob"},
        {{{"USER", "bob"}}, "Name", ""},
    };
    for (const auto& [environment, name, value] : cases)
        EXPECT_EQ(LinuxSystemApi("/", environment).Environ(name), value) << name;
    // A recording may name anybody, and the name goes to a terminal.
    EXPECT_EQ(
        LinuxSystemApi("/", {{"UserName", own}}, "\x1B[2J\nada\r\xC2\x9B").Environ("UserName"),
        "[2J ada");
}

TEST(SystemApi, TellsAFilesAttribute)
{
    const TemporaryFolder folder;
    folder.file("fonts/SegoeUI.ttf");
    fs::create_symlink("/dev/null", folder / "fonts/null");
    LinuxSystemApi machine("/", {});
    EXPECT_EQ(machine.GetAttr(folder / "fonts\\segoeui.ttf"), archive_attribute);
    EXPECT_NE(machine.GetAttr(folder / "fonts"), archive_attribute);
    EXPECT_NE(machine.GetAttr(folder / "fonts\\null"), archive_attribute);
    for (const char* missing : {"fonts\\segoeuil.ttf", "none\\segoeui.ttf"})
        EXPECT_THROW(machine.GetAttr(folder / missing), Failure) << missing;
}

TEST(Clock, ReadsTheRecordedTime)
{
    const TemporaryFolder tree;
    EXPECT_EQ(LinuxClock(tree / "").timeGetTime(), 0U);
    tree.file("proc/uptime", "4294968.33 1.00\n");
    EXPECT_EQ(LinuxClock(tree / "").timeGetTime(), 4294968330U);
    EXPECT_GT(LinuxClock("/").timeGetTime(), 0U);
    EXPECT_EQ(uptime_ms("52.86 29.70\n"), 52860U);
    for (const char* bad : {"", "52", "52.8", "x", "-1.00", "99999999999.00", "1.x0"})
        EXPECT_EQ(uptime_ms(bad), std::nullopt) << bad;
}

} // namespace
} // namespace ostrelum::linux_platform
