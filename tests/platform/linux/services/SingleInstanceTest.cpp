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

TEST(SingleInstance, TheSecondOneSeesTheFirstUntilItDies)
{
    const TemporaryFolder folder;
    fs::create_directory(folder / "run");
    fs::permissions(folder / "run", fs::perms(0700));
    for (const Environment& environment :
         {Environment{{"XDG_RUNTIME_DIR", folder / "run"}}, Environment{},
          Environment{{"XDG_RUNTIME_DIR", folder / "missing"}}}) {
        SingleInstance instance(environment, folder / ".");
        const pid_t first = started_holder(environment, folder / ".");
        EXPECT_TRUE(instance.another_runs());
        EXPECT_TRUE(instance.another_runs());
        ::kill(first, SIGKILL);
        ::waitpid(first, nullptr, 0);
        EXPECT_FALSE(instance.another_runs());
        EXPECT_FALSE(instance.another_runs()) << "it sees itself";
        EXPECT_TRUE(SingleInstance(environment, folder / ".").another_runs());
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
    EXPECT_FALSE(
        SingleInstance({{"XDG_RUNTIME_DIR", folder / "file"}}, folder / "file").another_runs());

    fs::create_directory(folder / "open");
    fs::create_directory(folder / ("open/" + own));
    fs::permissions(folder / ("open/" + own), fs::perms(0777));
    EXPECT_FALSE(SingleInstance({}, folder / "open").another_runs());
    EXPECT_TRUE(fs::is_empty(folder / ("open/" + own)))
        << "a folder that anyone may write was used";
}

} // namespace
} // namespace ostrelum::linux_platform
