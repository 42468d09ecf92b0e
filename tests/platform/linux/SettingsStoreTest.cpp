#include "platform/linux/SettingsStore.h"

#include "tests/platform/linux/TemporaryFolder.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

namespace ostrelum {
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

/// No file can grow beyond a few bytes, as on a full disk.
class FullDisk {
public:
    FullDisk() : handler_(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{16, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    rlimit before_ = {};
    void (*handler_)(int);
};

TEST(SettingsStore, KeepsValuesBetweenRuns)
{
    const TemporaryFolder folder;
    const std::string path = folder / "config/dervalin-ostrelum/settings";
    EXPECT_THROW(SettingsStore(path).read(language), Failure);
    SettingsStore(path).write(language, "Dutch");
    SettingsStore(path).write(root + "ColorValue", 255U);
    EXPECT_EQ(SettingsStore(path).read(language), RegValue("Dutch"));
    EXPECT_EQ(SettingsStore(path).read(root + "ColorValue"), RegValue(255U));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(fs::path(path).parent_path()).permissions(), fs::perms(0700));
    EXPECT_EQ(entries(fs::path(path).parent_path()), 1U);
}

TEST(SettingsStore, SeesAndKeepsAChangeByHand)
{
    const TemporaryFolder folder;
    const SettingsStore store(folder / "settings");
    store.write(language, "Dutch");
    folder.file("settings", "Language = Spanish\nMine = 1");
    EXPECT_EQ(store.read(language), RegValue("Spanish"));
    store.write(root + "SCV", 122U);
    EXPECT_EQ(store.read(language), RegValue("Spanish"));
    EXPECT_EQ(store.read(root + "Mine"), RegValue(1U));
}

TEST(SettingsStore, KeepsPermissionsAndReplacesTheTargetOfALink)
{
    const TemporaryFolder folder;
    const std::string target = folder.file("dotfiles/ostrelum", "Language = Dutch\n");
    fs::permissions(target, fs::perms(0640));
    ASSERT_EQ(::chown(target.c_str(), ::getuid(), ::getgid()), 0);
    fs::create_symlink("dotfiles/ostrelum", folder / "middle");
    fs::create_symlink(folder / "middle", folder / "settings");
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
    {
        const FullDisk full;
        EXPECT_THROW(store.write(language, "English"), Failure);
    }
    EXPECT_THROW(store.write("NoKey", 1U), Failure);
    EXPECT_THROW(store.write(root + "a\n[b", 1U), Failure);
    EXPECT_THROW(store.write(root + "a=b", 1U), Failure);
    EXPECT_THROW(store.write(language, "\xFF"), Failure);
    EXPECT_THROW(store.write(language, std::string(300000, 'x')), Failure);
    EXPECT_EQ(store.read(language), RegValue("Dutch"));
    EXPECT_EQ(content_of(folder / "settings"), "Language = Dutch\n");
    EXPECT_EQ(entries(folder / ""), 1U);
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

/// Writes two long values in turn until it is killed.
[[noreturn]] void rewrite_for_ever(const SettingsStore& store, const std::string (&values)[2])
{
    for (unsigned i = 0;; ++i) {
        try {
            store.write(language, values[i % 2]);
        } catch (...) {
            std::_Exit(1);
        }
    }
}

TEST(SettingsStore, KilledAtAnyMomentItIsTheOldOrTheNewOne)
{
    const TemporaryFolder folder;
    const SettingsStore store(folder.file("settings", "# first line\n"));
    const std::string values[2] = {std::string(60000, 'a'), std::string(90000, 'b')};
    store.write(language, values[0]);
    const int rounds = std::getenv("OSTRELUM_LONG") ? 2000 : 40;
    for (int round = 0; round < rounds; ++round) {
        const pid_t child = ::fork();
        if (child == 0)
            rewrite_for_ever(store, values);
        std::this_thread::sleep_for(std::chrono::microseconds(500 + 311 * (round % 40)));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "a write failed in round " << round;
        const RegValue value = store.read(language);
        ASSERT_TRUE(value == RegValue(values[0]) || value == RegValue(values[1])) << round;
        ASSERT_TRUE(content_of(folder / "settings").starts_with("# first line\n"));
    }
    store.write(language, "Dutch");
    EXPECT_EQ(entries(folder / ""), 1U) << "a killed writer's remains are taken over";
}

} // namespace
} // namespace ostrelum
