#include "platform/linux/files/Sysroot.h"

#include "platform/linux/files/ReadToEnd.h"
#include "platform/linux/text/NaturalOrder.h"
#include "platform/linux/text/Text.h"
#include "platform/system/Failure.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <system_error>

namespace ostrelum::linux_platform {
namespace {

bool is_regular(const Descriptor& place)
{
    struct stat status = {};
    return place && ::fstat(place.number(), &status) == 0 && S_ISREG(status.st_mode);
}

/// Opens for reading what a place is. The place refers to the file itself, whatever has taken its
/// name meanwhile.
Descriptor opened(const Descriptor& place)
{
    const std::string path = "/proc/self/fd/" + std::to_string(place.number());
    return Descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
}

bool is_live_root(const Descriptor& root)
{
    struct stat here = {};
    struct stat live = {};
    return ::fstat(root.number(), &here) == 0 && ::stat("/", &live) == 0 &&
           here.st_dev == live.st_dev && here.st_ino == live.st_ino;
}

bool is_kernel_path(const std::string& path)
{
    return path == "/proc" || path.starts_with("/proc/") || path.starts_with("/sys/");
}

} // namespace

Sysroot::Sysroot(const std::string& path, Resolver resolver)
    : root_(std::make_shared<Descriptor>(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC))),
      resolver_(resolver)
{
    if (!*root_)
        throw Failure(path + ": " + std::generic_category().message(errno));
    live_ = is_live_root(*root_);
}

Sysroot::Sysroot(const Sysroot& machine, std::shared_ptr<AccessObserver> observer)
    : Sysroot(machine)
{
    observer_ = std::move(observer);
    // It has yet to see what others have asked for.
    if (seen_)
        seen_ = std::make_shared<SeenFiles>();
}

Sysroot Sysroot::at_one_moment() const
{
    Sysroot machine(*this);
    machine.seen_ = std::make_shared<SeenFiles>();
    return machine;
}

std::optional<Sysroot> Sysroot::find(const std::string& path)
{
    try {
        return Sysroot(path);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

/// What the last call opened, if anything.
Descriptor Sysroot::checked(Descriptor file) const
{
    if (!file && (errno == EMFILE || errno == ENFILE || errno == ENOMEM))
        *shortage_ = errno;
    return file;
}

Descriptor Sysroot::find_place(const std::string& path, LastLink last) const
{
    return checked(resolver_(root_->number(), path, last));
}

template <class Answer, class Ask>
Answer Sysroot::once(SeenFiles::Kept<Answer> SeenFiles::*kind, const std::string& path,
                     Ask ask) const
{
    if (const Answer* answer = seen_ ? ((*seen_).*kind).find(path) : nullptr)
        return *answer;
    Answer answer = ask();
    if (seen_)
        seen_->keep((*seen_).*kind, path, answer);
    return answer;
}

bool Sysroot::exists(const std::string& path) const
{
    return once(&SeenFiles::places, path, [&] {
        if (observer_)
            observer_->on_exists(path);
        return static_cast<bool>(find_place(path, LastLink::Follow));
    });
}

std::optional<std::string> Sysroot::read(const std::string& path, std::size_t limit) const
{
    if (const auto* seen = seen_ ? seen_->contents.find(path) : nullptr)
        return *seen && (*seen)->size() > limit ? std::nullopt : *seen;
    std::optional<Descriptor> file;
    if (live_ && is_kernel_path(path))
        file = kernel_files_->open(root_->number(), path);
    file = file ? checked(std::move(*file)) : open(path);
    const FileEnd end = path.starts_with("/proc/") ? FileEnd::Nothing : FileEnd::LessThanAPage;
    auto content = *file ? read_to_end(*file, limit, end) : std::nullopt;
    // What is too long for this question may not be so for the next.
    if (seen_ && (content || !*file))
        seen_->keep(seen_->contents, path, content);
    if (observer_)
        observer_->on_read(path, content);
    return content;
}

std::optional<std::string> Sysroot::read_piece(const std::string& path, std::uint64_t at,
                                               std::size_t size) const
{
    const Descriptor file = open(path);
    std::string bytes(size, '\0');
    if (!file || ::pread(file.number(), bytes.data(), size, static_cast<off_t>(at)) !=
                     static_cast<ssize_t>(size))
        return std::nullopt;
    if (observer_)
        observer_->on_read_piece(path, at, bytes);
    return bytes;
}

Descriptor Sysroot::open(const std::string& path) const
{
    const Descriptor place = find_place(path, LastLink::Follow);
    return is_regular(place) ? checked(opened(place)) : Descriptor();
}

std::optional<std::string> Sysroot::text(const std::string& path) const
{
    const auto content = read(path, value_limit);
    if (!content)
        return std::nullopt;
    const std::size_t end = content->find_first_of(std::string_view("\n\0", 2));
    return text_or_none(std::string_view(*content).substr(0, end));
}

std::optional<std::uint64_t> Sysroot::number(const std::string& path) const
{
    const auto line = text(path);
    return line ? whole_number(*line) : std::nullopt;
}

std::vector<std::string> Sysroot::list(const std::string& path) const
{
    return once(&SeenFiles::folders, path, [&] {
        std::vector<std::string> names = list_unsorted(path);
        std::ranges::sort(names, natural_less);
        return names;
    });
}

std::vector<std::string> Sysroot::list_unsorted(const std::string& path) const
{
    Descriptor place = find_place(path, LastLink::Follow);
    Descriptor opened;
    if (place)
        opened =
            checked(Descriptor(::openat(place.number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(
        opened ? ::fdopendir(opened.release()) : nullptr, ::closedir);
    std::vector<std::string> names;
    while (const dirent* entry = folder ? ::readdir(folder.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    if (live_ && place && is_kernel_path(path))
        kernel_files_->keep(path, std::move(place));
    if (observer_)
        observer_->on_list(path, names);
    return names;
}

std::optional<std::string> Sysroot::link(const std::string& path) const
{
    return once(&SeenFiles::links, path, [&] {
        if (observer_)
            observer_->on_link(path);
        const Descriptor place = find_place(path, LastLink::Keep);
        return place ? link_text(place) : std::nullopt;
    });
}

void Sysroot::report_answer(const std::string& list, const std::string& key,
                            const std::string& value) const
{
    if (observer_)
        observer_->on_answer(list, key, value);
}

} // namespace ostrelum::linux_platform
