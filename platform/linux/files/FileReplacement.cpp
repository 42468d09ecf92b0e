#include "platform/linux/files/FileReplacement.h"

#include "platform/linux/files/FileStatus.h"
#include "platform/linux/files/PartFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <utility>

namespace ostrelum::linux_platform {

namespace {

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
void sync_folder(const Descriptor& folder)
{
    const Descriptor opened(::openat(folder.number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened)
        ::fsync(opened.number());
}

} // namespace

FileReplacement::FileReplacement(const std::string& path, mode_t new_mode)
    : path_(path), target_(find_written_place(path)), old_(std::move(target_.file)),
      part_name_(part_name(target_.name))
{
    // Nobody else opens the file before it is certain that he may read what it gets.
    part_ = make_part(target_.folder, part_name_, old_ ? owner_alone : new_mode, path);
    if (!part_ && !(old_ && is_closed_folder()))
        fail_at(path);
    if (!part_)
        hold(target_.folder, target_.name, old_, path);
}

FileReplacement::~FileReplacement()
{
    if (part_)
        ::unlinkat(target_.folder.number(), part_name_.c_str(), 0);
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
    write_all(part_, content, path_);
    if (::fsync(part_.number()) != 0)
        fail_at(path_);
    const int folder = target_.folder.number();
    if (::renameat(folder, part_name_.c_str(), folder, target_.name.c_str()) != 0) {
        // Something is mounted at the name.
        if (old_ && errno == EBUSY)
            return false;
        fail_at(path_);
    }
    part_ = Descriptor();
    sync_folder(target_.folder);
    return true;
}

/// The room is asked for first, and the rest of the old content cut off last, so that a full disk
/// costs nothing.
void FileReplacement::write_over(std::string_view content)
{
    if (!leads_to(target_.folder, target_.name, regular_status(old_, path_)))
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
