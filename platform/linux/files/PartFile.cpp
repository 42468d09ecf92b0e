#include "platform/linux/files/PartFile.h"

#include "platform/linux/files/FileStatus.h"
#include "platform/linux/files/WrittenPlace.h"
#include "platform/linux/text/Hex.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <functional>
#include <sys/file.h>

namespace ostrelum::linux_platform {

namespace {

Descriptor new_file(const Descriptor& folder, const std::string& name, mode_t mode)
{
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    return Descriptor(::openat(folder.number(), name.c_str(), flags, mode));
}

/// Removes what a killed process left, if the user may. Nothing is removed that is not held, since
/// another process may make its own at any moment. Throws Failure if one is at it.
void clear_away(const Descriptor& folder, const std::string& name, const std::string& path)
{
    struct stat left = {};
    if (::fstatat(folder.number(), name.c_str(), &left, AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISREG(left.st_mode))
        return;
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const Descriptor file(::openat(folder.number(), name.c_str(), flags));
    if (!file)
        return;
    hold(folder, name, file, path);
    ::unlinkat(folder.number(), name.c_str(), 0);
}

} // namespace

std::string part_name(const std::string& name)
{
    std::string readable = "." + name + ".part";
    const std::string brief = "." + lower_hex(std::hash<std::string>{}(name), 16) + ".part";
    return readable.size() > NAME_MAX ? brief : readable;
}

void hold(const Descriptor& folder, const std::string& name, const Descriptor& file,
          const std::string& path)
{
    const struct stat opened = regular_status(file, path);
    if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        fail_in_use(path);
    if (!leads_to(folder, name, opened))
        fail_in_use(path);
}

Descriptor make_part(const Descriptor& folder, const std::string& name, mode_t mode,
                     const std::string& path)
{
    Descriptor part = new_file(folder, name, mode);
    if (!part && errno == EEXIST) {
        clear_away(folder, name, path);
        part = new_file(folder, name, mode);
    }
    if (!part && errno == EEXIST)
        fail_in_use(path);
    if (part)
        hold(folder, name, part, path);
    return part;
}

bool is_closed_folder()
{
    return errno == EACCES || errno == EPERM || errno == EROFS;
}

} // namespace ostrelum::linux_platform
