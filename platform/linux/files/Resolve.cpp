#include "platform/linux/files/Resolve.h"

#include "platform/linux/files/PathWalk.h"

#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

constexpr int place_flags = O_PATH | O_CLOEXEC;

constexpr int kernel_file_flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

Descriptor open_in(int folder, const char* path, int flags, std::uint64_t resolve)
{
    open_how how = {};
    how.flags = static_cast<unsigned>(flags);
    how.resolve = resolve | RESOLVE_NO_MAGICLINKS;
    return Descriptor(static_cast<int>(::syscall(SYS_openat2, folder, path, &how, sizeof how)));
}

Descriptor open_in_root(int root, const std::string& path, int flags)
{
    return open_in(root, path.c_str(), flags, RESOLVE_IN_ROOT);
}

/// The kernel declined to answer the last call, which is no failure to find the file. It does so
/// for a path with ".." while anything on the machine is renamed or mounted, however far away.
bool is_refused()
{
    return errno == ENOSYS || errno == EPERM || errno == EAGAIN;
}

} // namespace

Descriptor resolve_in_root(int root, const std::string& path, LastLink last)
{
    Descriptor place =
        open_in_root(root, path, place_flags | (last == LastLink::Keep ? O_NOFOLLOW : 0));
    if (!place && is_refused())
        return resolve_by_hand(root, path, last);
    return place;
}

Descriptor resolve_by_hand(int root, const std::string& path, LastLink last)
{
    PathWalk walk(path);
    std::vector<Descriptor> trail;
    const auto here = [&] { return trail.empty() ? root : trail.back().number(); };
    while (!walk.done()) {
        const std::string name = walk.take();
        if (name == "..") {
            if (!trail.empty())
                trail.pop_back();
            continue;
        }
        Descriptor next(::openat(here(), name.c_str(), place_flags | O_NOFOLLOW));
        const auto target = next ? link_text(next) : std::nullopt;
        if (!next)
            return Descriptor();
        if (!target || (walk.done() && last == LastLink::Keep)) {
            trail.push_back(std::move(next));
            continue;
        }
        if (!walk.follow(*target))
            return Descriptor();
        if (target->starts_with('/'))
            trail.clear();
    }
    return trail.empty() ? Descriptor(::openat(root, ".", place_flags)) : std::move(trail.back());
}

std::optional<Descriptor> KernelFiles::open(int root, const std::string& path) const
{
    const bool below = folder_ && path.size() > path_.size() && path[path_.size()] == '/' &&
                       path.starts_with(path_);
    // A device that has come back has another folder at its place.
    if (Descriptor file =
            below ? open_in(folder_.number(), path.c_str() + path_.size() + 1, kernel_file_flags, 0)
                  : Descriptor())
        return file;
    Descriptor file = open_in_root(root, path, kernel_file_flags);
    if (!file && is_refused())
        return std::nullopt;
    return file;
}

void KernelFiles::keep(const std::string& path, Descriptor folder)
{
    path_ = path;
    folder_ = std::move(folder);
}

std::optional<std::string> link_text(const Descriptor& place)
{
    std::array<char, PATH_MAX> text;
    const ssize_t length = ::readlinkat(place.number(), "", text.data(), text.size());
    if (length <= 0)
        return std::nullopt;
    return std::string(text.data(), static_cast<std::size_t>(length));
}

} // namespace ostrelum::linux_platform
