#include "platform/linux/SettingsStore.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <thread>

namespace ostrelum {
namespace {

const std::string key = "HKEY_CURRENT_USER\\Software\\Ostrelum\\";
const std::string by_hand = "# by hand\nnot a line of ours\n";

constexpr int NoMounts = 77;

/// What a process of its own ends with; exceptions end it with 70.
pid_t begin(const std::function<int()>& body)
{
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    int code = 70;
    try {
        code = body();
    } catch (...) {
    }
    std::_Exit(code);
}

int code_of(pid_t child)
{
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool mounts_small_disk(const std::string& place)
{
    return ::unshare(CLONE_NEWNS) == 0 &&
           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("small", place.c_str(), "tmpfs", 0, "size=64k") == 0;
}

void fill(const std::string& place)
{
    std::ofstream filler(place + "/filler", std::ios::binary);
    while (filler.put('x').flush()) {
    }
}

void make_read_only(const std::string& place)
{
    ::mount(nullptr, place.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr);
}

/// 0: a write that cannot be done fails, and the file is as it was; else the number of what failed.
int write_where_it_cannot_be(const std::string& place, void (*spoil)(const std::string&))
{
    if (!mounts_small_disk(place))
        return NoMounts;
    const std::string path = place + "/settings";
    const SettingsStore store(path);
    std::ofstream(path) << by_hand;
    store.write(key + "Language", "Dutch");
    const std::string before = content_of(path);
    spoil(place);
    try {
        store.write(key + "Language", std::string(8000, 's'));
        return 1;
    } catch (const Failure&) {
    }
    if (content_of(path) != before || store.read(key + "Language") != RegValue("Dutch"))
        return 2;
    return std::filesystem::exists(place + "/.settings.part") ? 3 : 0;
}

TEST(SettingsPlaces, AFailedWriteLeavesTheFileAsItWas)
{
    const std::pair<const char*, void (*)(const std::string&)> cases[] = {
        {"a full disk", fill}, {"a disk that is only read", make_read_only}};
    for (const auto& [what, spoil] : cases) {
        const TemporaryFolder folder;
        const int code =
            code_of(begin([&] { return write_where_it_cannot_be(folder / "", spoil); }));
        if (code == NoMounts)
            GTEST_SKIP() << "only root may mount here";
        EXPECT_EQ(code, 0) << what;
    }
}

/// Counts a value up to the last; while the other program writes, a write fails and is done again.
int count_up(const SettingsStore& store, const std::string& name, std::uint32_t last)
{
    for (std::uint32_t value = 1; value <= last;) {
        try {
            store.write(name, value);
            ++value;
        } catch (const Failure&) {
            std::this_thread::sleep_for(std::chrono::microseconds(50));
        }
    }
    return 0;
}

TEST(SettingsPlaces, TwoProgramsThatWriteAtOnceLoseNothing)
{
    constexpr std::uint32_t last = 300;
    const TemporaryFolder folder;
    const SettingsStore store(folder.file("settings", by_hand));
    const pid_t writers[] = {begin([&] { return count_up(store, key + "SCV", last); }),
                             begin([&] { return count_up(store, key + "ColorValue", last); })};
    std::size_t torn = 0;
    for (const pid_t writer : writers) {
        int status = 0;
        while (::waitpid(writer, &status, WNOHANG) == 0) {
            const std::string content = content_of(folder / "settings");
            torn += content.starts_with(by_hand) && content.ends_with("\n") ? 0U : 1U;
        }
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(torn, 0U);
    EXPECT_EQ(store.read(key + "SCV"), RegValue(last));
    EXPECT_EQ(store.read(key + "ColorValue"), RegValue(last));
    EXPECT_FALSE(std::filesystem::exists(folder / ".settings.part"));
}

} // namespace
} // namespace ostrelum
