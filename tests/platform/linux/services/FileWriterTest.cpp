#include "platform/linux/services/FileWriter.h"

#include "platform/linux/files/Descriptor.h"
#include "platform/system/Failure.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <tuple>

namespace ostrelum::linux_platform {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

constexpr uid_t nobody = 65534;
constexpr uid_t stranger = 4711;
constexpr const char* old_text = "something longer";

bool is_root()
{
    return ::getuid() == 0;
}

struct stat status_of(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status;
}

/// Writes as another user, where root may become him; returns what went wrong.
std::string failure_of(const std::string& path, const std::string& bytes, uid_t writer = nobody)
{
    std::string failure;
    EXPECT_EQ(::setegid(is_root() ? writer : ::getgid()), 0);
    EXPECT_EQ(::seteuid(is_root() ? writer : ::getuid()), 0);
    try {
        LinuxFileWriter().replace(path, bytes);
    } catch (const Failure& error) {
        failure = error.what();
    }
    EXPECT_EQ(::seteuid(::getuid()), 0);
    EXPECT_EQ(::setegid(::getgid()), 0);
    return failure;
}

/// A file of that user in a folder of his.
std::string users_file(const TemporaryFolder& folder, const std::string& name)
{
    std::string path = folder.file(name, old_text);
    if (is_root()) {
        for (const fs::path& place :
             {fs::path(folder / ""), fs::path(path).parent_path(), fs::path(path)})
            EXPECT_EQ(::chown(place.c_str(), nobody, nobody), 0);
    }
    return path;
}

TEST(FileWriter, NewFilesAreAsTheUserHasThemAndOldOnesStayAsTheyAre)
{
    const TemporaryFolder folder;
    const mode_t mask = ::umask(022);
    LinuxFileWriter().replace(folder / "new.rtf", "bytes\0\xB7\r\n"s);
    ::umask(mask);
    EXPECT_EQ(content_of(folder / "new.rtf"), "bytes\0\xB7\r\n"s);
    EXPECT_EQ(fs::status(folder / "new.rtf").permissions(), fs::perms(0644));

    const std::string longest(255, 'n');
    for (const std::string& name : {"old.txt"s, longest}) {
        const std::string old = folder.file(name, old_text);
        fs::permissions(old, fs::perms(0640));
        const struct stat before = status_of(old);
        LinuxFileWriter().replace(old, "short");
        EXPECT_EQ(content_of(old), "short");
        EXPECT_EQ(fs::status(old).permissions(), fs::perms(0640));
        EXPECT_NE(status_of(old).st_ino, before.st_ino) << "replaced in one step";
    }
}

/// Whether the system lets that user open the file as a shell's ">" does.
bool system_allows(const std::string& path, uid_t writer)
{
    EXPECT_EQ(::seteuid(writer), 0);
    const Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    EXPECT_EQ(::seteuid(::getuid()), 0);
    return static_cast<bool>(file);
}

/// A file and two links of that owner in a folder where all may write; one link leads to nothing.
void lay_for(uid_t owner, const TemporaryFolder& folder)
{
    for (const char* name : {"file", "home/target"}) {
        fs::permissions(folder.file(name, old_text), fs::perms(0666));
        EXPECT_EQ(::chown((folder / name).c_str(), owner, owner), 0);
    }
    for (const char* link : {"target", "new"}) {
        fs::create_symlink("home/"s + link, folder / link);
        EXPECT_EQ(::lchown((folder / link).c_str(), owner, owner), 0);
    }
    fs::permissions(folder / "home", fs::perms(0777));
    fs::permissions(folder / "", fs::perms(01777));
}

TEST(FileWriter, IsRefusedWhatTheSystemRefusesWhereAllMayWrite)
{
    if (!is_root())
        GTEST_SKIP() << "only root can lay files there as several users";
    for (const uid_t owner : {uid_t{0}, nobody, stranger}) {
        for (const auto& [name, place] :
             {std::pair("file", "file"), {"target", "home/target"}, {"new", "home/new"}}) {
            for (const uid_t writer : {uid_t{0}, nobody}) {
                const TemporaryFolder folder;
                lay_for(owner, folder);
                const std::string path = folder / name;
                const bool allowed = system_allows(path, writer);
                fs::remove(folder / "home/new");
                const std::string what = name + " of "s + std::to_string(owner);
                EXPECT_EQ(failure_of(path, "short", writer) == "", allowed) << what;
                EXPECT_EQ(content_of(folder / place) == "short", allowed) << what;
            }
        }
    }
}

TEST(FileWriter, WritesIntoNoPartFileThatLayThere)
{
    const TemporaryFolder folder;
    const std::string report = folder / "report";
    const std::string other_name = folder.file("other", old_text);
    fs::create_hard_link(other_name, folder / ".report.part");
    LinuxFileWriter().replace(report, "short");
    EXPECT_EQ(content_of(other_name), old_text);
    EXPECT_EQ(content_of(report), "short");
    EXPECT_FALSE(fs::exists(folder / ".report.part"));
    if (!is_root())
        return;
    ASSERT_EQ(::chmod((folder / "").c_str(), 01777), 0);
    const std::string part = folder.file(".mine.part", old_text);
    ASSERT_EQ(::chmod(part.c_str(), 0666), 0);
    ASSERT_EQ(::chown(part.c_str(), stranger, stranger), 0);
    EXPECT_EQ(failure_of(folder / "mine", "short"), folder / "mine" + ": in use");
    EXPECT_EQ(content_of(part), old_text);
    EXPECT_FALSE(fs::exists(folder / "mine"));
}

TEST(FileWriter, WritesOverAFileThatNoOtherCouldReplace)
{
    const struct {
        const char* name;
        uid_t writer;
        bool takes_root;
        void (*prepare)(const std::string& file);
    } cases[] = {
        {"linked/file", nobody, false,
         [](const std::string& file) { fs::create_hard_link(file, file + "2"); }},
        {"closed/file", nobody, false,
         [](const std::string& file) {
             fs::permissions(fs::path(file).parent_path(), fs::perms(0555));
         }},
        {"owned/file", 0, true, [](const std::string&) {}},
        {"grouped/file", nobody, true,
         [](const std::string& file) { EXPECT_EQ(::chown(file.c_str(), nobody, 4711), 0); }},
    };
    for (const auto& [name, writer, takes_root, prepare] : cases) {
        if (takes_root && !is_root())
            continue;
        const TemporaryFolder folder;
        const std::string file = users_file(folder, name);
        prepare(file);
        const struct stat before = status_of(file);
        EXPECT_EQ(failure_of(file, "short", writer), "") << name;
        EXPECT_EQ(content_of(file), "short") << name;
        const struct stat after = status_of(file);
        EXPECT_EQ(after.st_ino, before.st_ino) << name;
        EXPECT_EQ(std::tuple(after.st_uid, after.st_gid, after.st_mode, after.st_nlink),
                  std::tuple(before.st_uid, before.st_gid, before.st_mode, before.st_nlink))
            << name;
        fs::permissions(fs::path(file).parent_path(), fs::perms(0755));
    }
}

TEST(FileWriter, WritesOverWhatIsMountedAtItsNameAndAFullDiskCostsNothing)
{
    if (::unshare(CLONE_NEWNS) != 0 ||
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        GTEST_SKIP() << "only root may mount";
    const TemporaryFolder folder;
    const std::string elsewhere = folder.file("elsewhere", old_text);
    const std::string mounted = folder.file("mounted");
    ASSERT_EQ(::mount(elsewhere.c_str(), mounted.c_str(), nullptr, MS_BIND, nullptr), 0);
    LinuxFileWriter().replace(mounted, "short");
    EXPECT_EQ(content_of(elsewhere), "short");
    EXPECT_EQ(::umount(mounted.c_str()), 0);

    const std::string small = folder / "small";
    fs::create_directory(small);
    ASSERT_EQ(::mount("none", small.c_str(), "tmpfs", 0, "size=64k"), 0);
    const std::string linked = folder.file("small/linked", old_text);
    fs::create_hard_link(linked, small + "/other");
    EXPECT_THROW(LinuxFileWriter().replace(linked, std::string(1 << 20, 'x')), Failure);
    EXPECT_EQ(content_of(linked), old_text);
    EXPECT_EQ(::umount(small.c_str()), 0);
}

TEST(FileWriter, AFailureNamesTheFileAndLeavesNothingBehind)
{
    const TemporaryFolder folder;
    folder.file("folder.rtf/inside");
    const std::string read_only = users_file(folder, "read-only.txt");
    fs::permissions(read_only, fs::perms(0444));
    fs::create_symlink("read-only.txt", folder / "link.txt");
    const std::pair<const char*, const char*> cases[] = {
        {"gone/report.rtf", "No such file or directory"},
        {"folder.rtf", "not a regular file"},
        {"read-only.txt", "Permission denied"},
        {"link.txt", "Permission denied"},
    };
    for (const auto& [name, reason] : cases)
        EXPECT_EQ(failure_of(folder / name, "x"), folder / name + ": " + reason);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / ""), fs::directory_iterator()), 3);
    EXPECT_TRUE(fs::exists(folder / "folder.rtf/inside"));
    EXPECT_EQ(content_of(read_only), old_text);
}

} // namespace
} // namespace ostrelum::linux_platform
