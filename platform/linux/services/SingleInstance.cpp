#include "platform/linux/services/SingleInstance.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string_view>
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

Descriptor open_lock(const std::string& path)
{
    constexpr int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    Descriptor file(::open(path.c_str(), flags, 0600));
    // The sticky bit saves it from being cleared away as an old file.
    if (file)
        ::fchmod(file.number(), S_ISVTX | S_IRUSR | S_IWUSR);
    return file;
}

/// The socket of the Wayland display: a name alone lies in the session's folder. Empty without one.
std::string wayland_display(const Environment& environment)
{
    const std::string name = variable(environment, "WAYLAND_DISPLAY");
    if (name.empty() || name.starts_with('/'))
        return name;
    const std::string folder = variable(environment, "XDG_RUNTIME_DIR");
    return folder.empty() ? "" : folder + "/" + name;
}

/// The X11 display without its screen: ":0" for ":0.0".
std::string x11_display(const Environment& environment)
{
    const std::string name = variable(environment, "DISPLAY");
    return name.substr(0, name.find('.', name.rfind(':')));
}

std::vector<std::string> lock_names(const Environment& environment)
{
    std::vector<std::string> names;
    const auto add = [&](std::string_view kind, std::string display) {
        std::ranges::replace(display, '/', '_');
        if (!display.empty())
            names.push_back(std::string(kind) + display + ".lock");
    };
    add("wayland", wayland_display(environment));
    add("x11", x11_display(environment));
    if (names.empty())
        names.emplace_back("no-display.lock");
    return names;
}

} // namespace

SingleInstance::SingleInstance(const Environment& environment, const std::string& shared)
    : folder_(shared + "/dervalin-ostrelum-" + std::to_string(::geteuid())),
      names_(lock_names(environment))
{
}

bool SingleInstance::another_runs()
{
    if (!locks_.empty())
        return false;
    ::mkdir(folder_.c_str(), 0700);
    if (!private_folder(folder_))
        return false;
    for (const std::string& name : names_) {
        Descriptor file = open_lock(folder_ + "/" + name);
        if (!file)
            continue;
        if (::flock(file.number(), LOCK_EX | LOCK_NB) == 0) {
            locks_.push_back(std::move(file));
        } else if (errno == EWOULDBLOCK) {
            locks_.clear();
            return true;
        }
    }
    return false;
}

} // namespace ostrelum::linux_platform
