#include "platform/linux/services/SingleInstance.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ostrelum::linux_platform {

namespace {

/// A real folder, no link, of this user's, that nobody else may write to: what lies there is no
/// trap of another user's.
bool private_folder(const std::string& path)
{
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

Descriptor open_lock(const std::string& folder)
{
    if (!private_folder(folder))
        return Descriptor();
    const std::string path = folder + "/dervalin-ostrelum.lock";
    constexpr int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    Descriptor file(::open(path.c_str(), flags, 0600));
    // The sticky bit saves it from the clearing of old files that the base directory
    // specification allows.
    if (file)
        ::fchmod(file.number(), S_ISVTX | S_IRUSR | S_IWUSR);
    return file;
}

} // namespace

SingleInstance::SingleInstance(const Environment& environment, const std::string& shared)
    : runtime_folder_(variable(environment, "XDG_RUNTIME_DIR")),
      own_folder_(shared + "/dervalin-ostrelum-" + std::to_string(::geteuid()))
{
}

bool SingleInstance::another_runs()
{
    if (lock_)
        return false;
    Descriptor file;
    if (runtime_folder_.starts_with('/'))
        file = open_lock(runtime_folder_);
    if (!file) {
        ::mkdir(own_folder_.c_str(), 0700);
        file = open_lock(own_folder_);
    }
    if (!file)
        return false;
    if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK;
    lock_ = std::move(file);
    return false;
}

} // namespace ostrelum::linux_platform
