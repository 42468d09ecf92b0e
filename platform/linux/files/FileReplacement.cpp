#include "platform/linux/files/FileReplacement.h"

#include "platform/linux/files/FileStatus.h"
#include "platform/linux/files/PathWalk.h"
#include "platform/linux/text/Hex.h"
#include "platform/system/Failure.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <sys/file.h>

namespace ostrelum::linux_platform {

namespace {

namespace fs = std::filesystem;

constexpr int write_flags = O_WRONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;

[[noreturn]] void fail_in_use(const std::string& path)
{
    throw Failure(path + ": in use");
}

/// What a chain of symbolic links leads to; it need not exist.
std::string followed(const std::string& path)
{
    fs::path place = path;
    for (int links = 0; links < link_limit; ++links) {
        std::error_code error;
        const fs::path next = fs::read_symlink(place, error);
        if (error)
            return place;
        place = place.parent_path() / next;
    }
    throw Failure(path + ": too many symbolic links");
}

/// The file that is there, open for writing; none where there is none yet. What is no regular file
/// is not opened: with some devices that alone does something.
Descriptor existing_file(const std::string& target, const std::string& path)
{
    struct stat found = {};
    if (::lstat(target.c_str(), &found) != 0)
        return Descriptor();
    if (!S_ISREG(found.st_mode))
        throw Failure(path + ": not a regular file");
    Descriptor file(::open(target.c_str(), write_flags));
    if (!file)
        fail_at(path);
    regular_status(file, path);
    return file;
}

/// Beside the target, under its name where there is room in a name for more.
std::string part_name(const fs::path& target)
{
    const std::string name = target.filename();
    const std::string readable = "." + name + ".part";
    const std::string brief = "." + lower_hex(std::hash<std::string>{}(name), 16) + ".part";
    return target.parent_path() / (readable.size() > NAME_MAX ? brief : readable);
}

/// Whether `name` still leads to the file that was opened.
bool leads_to(const std::string& name, const struct stat& opened)
{
    struct stat named = {};
    return ::lstat(name.c_str(), &named) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

/// Takes the file for this process alone, as far as the file system knows locks. The name is looked
/// at again once the lock is had: its last holder may have put another file there.
void hold(const Descriptor& file, const std::string& name, const std::string& path)
{
    const struct stat opened = regular_status(file, path);
    if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        fail_in_use(path);
    if (!leads_to(name, opened))
        fail_in_use(path);
}

/// Whether the last call failed because the folder is not the user's to write.
bool is_closed_folder()
{
    return errno == EACCES || errno == EPERM || errno == EROFS;
}

/// The part file, open and held. What a killed process left is taken over. None where the folder
/// may not be written but the file in it may.
Descriptor held_part(const std::string& name, mode_t mode, const Descriptor& old,
                     const std::string& path)
{
    Descriptor part(::open(name.c_str(), write_flags | O_CREAT, mode));
    if (part)
        hold(part, name, path);
    else if (!old || !is_closed_folder())
        fail_at(path);
    return part;
}

void write_all(const Descriptor& file, std::string_view content, const std::string& path)
{
    while (!content.empty()) {
        const ssize_t written = ::write(file.number(), content.data(), content.size());
        if (written < 0 && errno != EINTR)
            fail_at(path);
        if (written > 0)
            content.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// Gives the new file owner, group and permissions of the old one. False if that cannot be done, or
/// if the old one cannot be replaced at all without somebody's losing it.
bool takes_over(const Descriptor& part, const struct stat& old)
{
    constexpr mode_t permissions = 07777;
    if (old.st_nlink > 1 || old.st_uid != ::geteuid())
        return false;
    [[maybe_unused]] const int owner = ::fchown(part.number(), old.st_uid, old.st_gid);
    ::fchmod(part.number(), old.st_mode & permissions);
    struct stat taken = {};
    return ::fstat(part.number(), &taken) == 0 && taken.st_uid == old.st_uid &&
           taken.st_gid == old.st_gid && ((taken.st_mode ^ old.st_mode) & permissions) == 0;
}

/// Makes the renaming itself survive a loss of power, where the file system can.
void sync_folder(const fs::path& folder)
{
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened)
        ::fsync(opened.number());
}

} // namespace

FileReplacement::FileReplacement(const std::string& path, mode_t new_mode)
    : path_(path), target_(followed(path)), old_(existing_file(target_, path)),
      part_name_(part_name(target_)), part_(held_part(part_name_, new_mode, old_, path))
{
    if (!part_)
        hold(old_, target_, path);
}

FileReplacement::~FileReplacement()
{
    if (part_)
        ::unlink(part_name_.c_str());
}

void FileReplacement::commit(std::string_view content)
{
    if (!part_ || !replaced(content))
        write_over(content);
}

/// False if the old file must stay the file that it is.
bool FileReplacement::replaced(std::string_view content)
{
    if (old_ && !takes_over(part_, regular_status(old_, path_)))
        return false;
    if (::ftruncate(part_.number(), 0) != 0)
        fail_at(path_);
    write_all(part_, content, path_);
    if (::fsync(part_.number()) != 0)
        fail_at(path_);
    if (::rename(part_name_.c_str(), target_.c_str()) != 0) {
        // Something is mounted at the name.
        if (old_ && errno == EBUSY)
            return false;
        fail_at(path_);
    }
    part_ = Descriptor();
    sync_folder(fs::path(target_).parent_path());
    return true;
}

/// The room is asked for first, and the rest of the old content cut off last, so that a full disk
/// costs nothing.
void FileReplacement::write_over(std::string_view content)
{
    if (!leads_to(target_, regular_status(old_, path_)))
        fail_in_use(path_);
    const auto size = static_cast<off_t>(content.size());
    const bool refused = ::fallocate(old_.number(), FALLOC_FL_KEEP_SIZE, 0, size) != 0 &&
                         (errno == ENOSPC || errno == EDQUOT || errno == EFBIG);
    if (refused)
        fail_at(path_);
    write_all(old_, content, path_);
    if (::ftruncate(old_.number(), size) != 0 || ::fsync(old_.number()) != 0)
        fail_at(path_);
}

} // namespace ostrelum::linux_platform
