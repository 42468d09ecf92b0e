#include "platform/linux/services/SettingsStore.h"

#include "tests/platform/linux/TemporaryFolder.h"

#include <chrono>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

namespace ostrelum::linux_platform {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

const std::string root = "HKEY_CURRENT_USER\\Software\\Ostrelum\\";
const std::string language = root + "Language";

/// The names in a folder, hidden ones too.
std::size_t entries(const fs::path& folder)
{
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

/// A process of its own; it ends with 1 if something fails.
pid_t begin(const std::function<void()>& body)
{
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    try {
        body();
    } catch (...) {
        std::_Exit(1);
    }
    std::_Exit(0);
}

/// How a process ended; -1 while it runs, if that is not waited for.
int status_of(pid_t child, int options = 0)
{
    int status = 0;
    return ::waitpid(child, &status, options) == 0 ? -1 : status;
}

TEST(SettingsStore, KeepsPermissionsAndReplacesTheTargetOfALink)
{
    const TemporaryFolder folder;
    const std::string target = folder.file("dotfiles/ostrelum", "Language = Dutch\n");
    fs::permissions(target, fs::perms(0640));
    ASSERT_EQ(::chown(target.c_str(), ::getuid(), ::getgid()), 0);
    fs::create_symlink("dotfiles/ostrelum", folder / "middle");
    fs::create_symlink(folder / "middle", folder / "settings");
    // As a writer that was killed leaves it.
    folder.file("dotfiles/.ostrelum.part", "Language = torn");
    SettingsStore(folder / "settings").write(language, "English");
    EXPECT_EQ(content_of(target), "Language = \"English\"\n");
    EXPECT_TRUE(fs::is_symlink(folder / "settings"));
    EXPECT_TRUE(fs::is_symlink(folder / "middle"));
    EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));
    EXPECT_EQ(entries(folder / "dotfiles"), 1U);
}

TEST(SettingsStore, AFailedWriteLeavesTheOldFile)
{
    const TemporaryFolder folder;
    const SettingsStore store(folder.file("settings", "Language = Dutch\n"));
    const pid_t on_full_disk = begin([&] {
        // No file can grow beyond a few bytes.
        const rlimit small{16, 16};
        ::setrlimit(RLIMIT_FSIZE, &small);
        std::signal(SIGXFSZ, SIG_IGN);
        store.write(language, "English");
    });
    EXPECT_EQ(WEXITSTATUS(status_of(on_full_disk)), 1);
    const std::pair<std::string, RegValue> bad[] = {{"NoKey", 1U},
                                                    {root + "a\n[b", 1U},
                                                    {root + "a=b", 1U},
                                                    {language, "\xFF"},
                                                    {language, std::string(300000, 'x')}};
    for (const auto& [name, value] : bad)
        EXPECT_THROW(store.write(name, value), Failure) << name;
    EXPECT_EQ(entries(folder / ""), 1U);
    fs::create_directory(folder / ".settings.part");
    EXPECT_THROW(store.write(language, "English"), Failure) << "nothing can be written beside it";
    EXPECT_EQ(content_of(folder / "settings"), "Language = Dutch\n");
}

TEST(SettingsStore, RefusesWhatIsNoSettingsFile)
{
    const TemporaryFolder folder;
    folder.file("file");
    folder.file("huge", std::string(300000, '\n') + "Language = Dutch");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    fs::create_symlink("loop", folder / "loop");
    fs::create_symlink("/dev/null", folder / "null");
    for (const char* name : {"file/settings", "huge", "pipe", "loop", "null", ".", ""}) {
        const SettingsStore store(*name == '\0' ? "" : folder / name);
        EXPECT_THROW(store.read(language), Failure) << name;
        EXPECT_THROW(store.write(language, "English"), Failure) << name;
    }
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(content_of(folder / "huge").size(), 300016U);
    EXPECT_EQ(entries(folder / ""), 5U);
}

TEST(SettingsStore, TwoProgramsThatWriteAtOnceLoseNothing)
{
    constexpr std::uint32_t last = 300;
    const TemporaryFolder folder;
    const SettingsStore store(folder.file("settings", "# by hand\n"));
    // While the other program writes, a write fails and is done again.
    const auto count_up = [&](const char* name) {
        for (std::uint32_t value = 1; value <= last;) {
            try {
                store.write(root + name, value);
                ++value;
            } catch (const Failure&) {
                std::this_thread::sleep_for(std::chrono::microseconds(50));
            }
        }
    };
    const char* const names[] = {"SCV", "ColorValue"};
    const pid_t first = begin([&] { count_up(names[0]); });
    const pid_t second = begin([&] { count_up(names[1]); });
    int status = -1;
    while ((status = status_of(first, WNOHANG)) == -1) {
        const std::string content = content_of(folder / "settings");
        EXPECT_TRUE(content.starts_with("# by hand\n") && content.ends_with("\n")) << "torn";
    }
    EXPECT_EQ(status, 0);
    EXPECT_EQ(status_of(second), 0);
    for (const char* name : names)
        EXPECT_EQ(store.read(root + name), RegValue(last)) << name;
    EXPECT_EQ(entries(folder / ""), 1U);
}

} // namespace
} // namespace ostrelum::linux_platform
