#include "platform/linux/files/WrittenPlace.h"

#include "platform/linux/files/FileStatus.h"
#include "platform/system/Failure.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <utility>

namespace ostrelum::linux_platform {

namespace {

constexpr int place_flags = O_PATH | O_CLOEXEC;
constexpr int write_flags = O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

/// The place that a path names, over no link at its end. Throws Failure if its folder is not there.
WrittenPlace named_place(const std::filesystem::path& named, const std::string& path)
{
    WrittenPlace place;
    const std::string folder = named.has_parent_path() ? named.parent_path() : ".";
    place.folder = Descriptor(::open(folder.c_str(), place_flags | O_DIRECTORY));
    place.name = named.filename();
    if (place.folder && place.name.empty())
        errno = EISDIR;
    if (!place.folder || place.name.empty())
        fail_at(path);
    return place;
}

/// The name under which the kernel knows what was opened.
std::string kernel_name(const Descriptor& file)
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file.number()), error);
}

bool is_link(const WrittenPlace& place)
{
    struct stat status = {};
    return ::fstatat(place.folder.number(), place.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) ==
               0 &&
           S_ISLNK(status.st_mode);
}

/// Opens the file by its own name: only so does the kernel look whose the folder and the file are,
/// and in a sticky folder only if a file might be made.
Descriptor opened(const WrittenPlace& place)
{
    struct stat folder = {};
    const bool is_sticky =
        ::fstat(place.folder.number(), &folder) != 0 || (folder.st_mode & S_ISVTX) != 0;
    const int flags = write_flags | O_NOFOLLOW | (is_sticky ? O_CREAT : 0);
    return Descriptor(::openat(place.folder.number(), place.name.c_str(), flags, 0));
}

/// The place of a file that was found.
WrittenPlace place_of(const Descriptor& found, const std::string& path)
{
    const struct stat status = regular_status(found, path);
    WrittenPlace place = named_place(path, path);
    if (!leads_to(place.folder, place.name, status))
        place = named_place(kernel_name(found), path);
    // A file that was replaced or removed meanwhile has no name any more.
    if (!leads_to(place.folder, place.name, status))
        fail_in_use(path);
    place.file = opened(place);
    if (!place.file)
        fail_at(path);
    if (!leads_to(place.folder, place.name, regular_status(place.file, path)))
        fail_in_use(path);
    return place;
}

/// Of a link that leads to where there is no file yet: whether one may be made there, and where
/// that is, only the kernel knows once it has made one. That is removed, since the new file comes
/// whole.
WrittenPlace place_behind_link(const std::string& path)
{
    const Descriptor made(::open(path.c_str(), write_flags | O_CREAT, S_IRUSR | S_IWUSR));
    if (!made)
        fail_at(path);
    WrittenPlace place = place_of(made, path);
    const bool is_empty = regular_status(place.file, path).st_size == 0;
    if (is_empty && ::unlinkat(place.folder.number(), place.name.c_str(), 0) == 0)
        place.file = Descriptor();
    return place;
}

} // namespace

void fail_in_use(const std::string& path)
{
    throw Failure(path + ": in use");
}

WrittenPlace find_written_place(const std::string& path)
{
    const Descriptor found(::open(path.c_str(), place_flags));
    if (found)
        return place_of(found, path);
    if (errno != ENOENT)
        fail_at(path);
    WrittenPlace place = named_place(path, path);
    return is_link(place) ? place_behind_link(path) : std::move(place);
}

bool leads_to(const Descriptor& folder, const std::string& name, const struct stat& status)
{
    struct stat named = {};
    return ::fstatat(folder.number(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           named.st_dev == status.st_dev && named.st_ino == status.st_ino;
}

} // namespace ostrelum::linux_platform
