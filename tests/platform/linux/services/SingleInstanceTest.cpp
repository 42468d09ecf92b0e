#include "platform/linux/services/SingleInstance.h"

#include "tests/platform/linux/TemporaryFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ostrelum::linux_platform {
namespace {

namespace fs = std::filesystem;

/// A second process that has the lock and waits to be killed.
pid_t started_holder(const Environment& environment, const std::string& shared)
{
    const pid_t child = ::fork();
    if (child == 0) {
        SingleInstance instance(environment, shared);
        if (!instance.another_runs())
            ::raise(SIGSTOP);
        std::_Exit(1);
    }
    int status = 0;
    ::waitpid(child, &status, WUNTRACED);
    EXPECT_TRUE(WIFSTOPPED(status)) << "the lock was not free";
    return child;
}

TEST(SingleInstance, TheSecondOneOnADisplaySeesTheFirstUntilItDies)
{
    const TemporaryFolder runtime;
    const std::string session = runtime / "session";
    fs::create_directory(session);
    const Environment x11{{"DISPLAY", ":0"}};
    const Environment both{
        {"DISPLAY", ":0"}, {"WAYLAND_DISPLAY", "wayland-0"}, {"XDG_RUNTIME_DIR", session}};
    const struct {
        Environment first, second;
        bool seen;
    } cases[] = {{{}, {}, true},
                 {x11, {{"DISPLAY", ":0.1"}, {"XDG_RUNTIME_DIR", session}}, true},
                 {both, x11, true},
                 {{{"WAYLAND_DISPLAY", session + "/wayland-0"}}, both, true},
                 {x11, {{"DISPLAY", ":1"}}, false},
                 {x11, {{"DISPLAY", "host:0"}}, false},
                 {both, {{"WAYLAND_DISPLAY", runtime / "wayland-0"}}, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const TemporaryFolder folder;
        SingleInstance instance(c.second, folder / ".");
        const pid_t first = started_holder(c.first, folder / ".");
        EXPECT_EQ(instance.another_runs(), c.seen);
        EXPECT_EQ(instance.another_runs(), c.seen);
        ::kill(first, SIGKILL);
        ::waitpid(first, nullptr, 0);
        EXPECT_FALSE(instance.another_runs());
        EXPECT_FALSE(instance.another_runs()) << "it sees itself";
        EXPECT_TRUE(SingleInstance(c.second, folder / ".").another_runs());
    }
}

TEST(SingleInstance, StartsWhereNoLockCanBeMade)
{
    const TemporaryFolder folder;
    const std::string own = "dervalin-ostrelum-" + std::to_string(::geteuid());
    fs::create_directory(folder / "trap");
    fs::create_directory_symlink(folder / "trap", folder / own);
    folder.file("file");
    EXPECT_FALSE(SingleInstance({}, folder / ".").another_runs());
    EXPECT_TRUE(fs::is_empty(folder / "trap")) << "a link of somebody else's was followed";
    EXPECT_FALSE(SingleInstance({}, folder / "file").another_runs());

    fs::create_directory(folder / "open");
    fs::create_directory(folder / ("open/" + own));
    fs::permissions(folder / ("open/" + own), fs::perms(0777));
    EXPECT_FALSE(SingleInstance({}, folder / "open").another_runs());
    EXPECT_TRUE(fs::is_empty(folder / ("open/" + own)))
        << "a folder that anyone may write was used";
}

} // namespace
} // namespace ostrelum::linux_platform
