#include "platform/linux/files/WholeFile.h"

#include "platform/linux/files/PathWalk.h"
#include "platform/linux/files/ReadToEnd.h"
#include "platform/system/Failure.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>

namespace ostrelum::linux_platform {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& path)
{
    throw Failure(path + ": " + std::generic_category().message(errno));
}

/// The status of a file that must be a regular one.
struct stat regular_status(const Descriptor& file, const std::string& path)
{
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0)
        fail(path);
    if (!S_ISREG(status.st_mode))
        throw Failure(path + ": not a regular file");
    return status;
}

/// What a chain of symbolic links leads to; it need not exist.
std::string followed(fs::path path)
{
    for (int links = 0; links < link_limit; ++links) {
        std::error_code error;
        const fs::path next = fs::read_symlink(path, error);
        if (error)
            return path;
        path = path.parent_path() / next;
    }
    throw Failure(path.string() + ": too many symbolic links");
}

std::string part_name(const fs::path& target)
{
    return target.parent_path() / ("." + target.filename().string() + ".part");
}

/// The part file, open and held by this process alone. What a killed process left is taken over.
/// The name is looked at again once the lock is had: its last holder may have made the part the
/// file itself.
Descriptor held_part(const std::string& path, mode_t mode)
{
    constexpr int flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    Descriptor file(::open(path.c_str(), flags, mode));
    if (!file)
        fail(path);
    const struct stat opened = regular_status(file, path);
    if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        fail(path);
    struct stat named = {};
    if (::lstat(path.c_str(), &named) != 0 || named.st_ino != opened.st_ino)
        throw Failure(path + ": in use");
    return file;
}

void write_all(const Descriptor& file, std::string_view content, const std::string& path)
{
    while (!content.empty()) {
        const ssize_t written = ::write(file.number(), content.data(), content.size());
        if (written < 0 && errno != EINTR)
            fail(path);
        if (written > 0)
            content.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// Gives the file the owner and permissions of the one that it replaces, as far as this process and
/// the file system can: the content counts more.
void take_over(const Descriptor& file, const std::string& target)
{
    struct stat old = {};
    if (::lstat(target.c_str(), &old) != 0)
        return;
    if (!S_ISREG(old.st_mode))
        throw Failure(target + ": not a regular file");
    [[maybe_unused]] const int owner = ::fchown(file.number(), old.st_uid, old.st_gid);
    ::fchmod(file.number(), old.st_mode & 0777U);
}

/// Makes the renaming itself survive a loss of power, where the file system can.
void sync_folder(const fs::path& folder)
{
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened)
        ::fsync(opened.number());
}

} // namespace

std::optional<std::string> read_whole_file(const std::string& path, std::size_t limit)
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file && (errno == ENOENT || errno == ENOTDIR))
        return std::nullopt;
    if (!file)
        fail(path);
    regular_status(file, path);
    auto content = read_to_end(file, limit);
    if (!content)
        fail(path);
    return content;
}

FileReplacement::FileReplacement(const std::string& path, mode_t new_mode)
    : target_(followed(path)), part_(part_name(target_)), file_(held_part(part_, new_mode))
{
}

FileReplacement::~FileReplacement()
{
    if (file_)
        ::unlink(part_.c_str());
}

void FileReplacement::commit(std::string_view content)
{
    if (::ftruncate(file_.number(), 0) != 0)
        fail(part_);
    write_all(file_, content, part_);
    take_over(file_, target_);
    if (::fsync(file_.number()) != 0 || ::rename(part_.c_str(), target_.c_str()) != 0)
        fail(part_);
    file_ = Descriptor();
    sync_folder(fs::path(target_).parent_path());
}

} // namespace ostrelum::linux_platform
