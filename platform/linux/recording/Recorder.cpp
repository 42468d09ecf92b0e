#include "platform/linux/recording/Recorder.h"

#include "platform/linux/files/PathWalk.h"

namespace ostrelum::linux_platform {

void Recorder::keep(const std::string& place, PlaceKind kind, const std::string& content,
                    const std::string& asked)
{
    // The root itself, to which links may lead, is there anyway. What was answered has its own
    // place in a recording, where a recorded machine has the answers that it was made of.
    if (place.empty() || place == "/.facts" || place.starts_with("/.facts/"))
        return;
    const auto [known, is_new] = recording_.places.try_emplace(place, Place{kind, content, asked});
    if (!is_new && known->second.kind < kind)
        known->second = {kind, content, asked};
}

std::optional<std::string> Recorder::link_at(const std::string& place, const std::string& asked)
{
    const auto known = recording_.places.find(place);
    if (known != recording_.places.end() && known->second.kind >= PlaceKind::Folder)
        return known->second.kind == PlaceKind::Link ? std::optional(known->second.content)
                                                     : std::nullopt;
    auto target = files_.link(place);
    if (target)
        keep(place, PlaceKind::Link, *target, asked);
    return target;
}

/// Keeps the links and folders on the way. The place that the path leads to over all links; nothing
/// if there is none.
std::optional<std::string> Recorder::walk(const std::string& path, LastLink last)
{
    PathWalk rest(path);
    std::string here;
    while (!rest.done()) {
        const std::string name = rest.take();
        if (name == "..") {
            here.resize(here.empty() ? 0 : here.rfind('/'));
            continue;
        }
        const std::string next = here + "/" + name;
        const auto target = link_at(next, path);
        if (!target && !files_.exists(next))
            return std::nullopt;
        if (!target || (rest.done() && last == LastLink::Keep)) {
            here = next;
            if (!rest.done())
                keep(here, PlaceKind::Folder, "", path);
            continue;
        }
        if (!rest.follow(*target))
            return std::nullopt;
        if (target->starts_with('/'))
            here.clear();
    }
    return here;
}

void Recorder::on_exists(const std::string& path)
{
    if (const auto place = walk(path, LastLink::Follow))
        keep(*place, PlaceKind::Name, "", path);
}

void Recorder::on_read(const std::string& path, const std::optional<std::string>& content)
{
    if (const auto place = walk(path, LastLink::Follow))
        keep(*place, content ? PlaceKind::File : PlaceKind::Unreadable, content.value_or(""), path);
}

void Recorder::on_read_piece(const std::string& path, std::uint64_t at, const std::string& bytes)
{
    const auto place = walk(path, LastLink::Follow);
    if (place && !place->empty())
        recording_.pieces.try_emplace({*place, at}, bytes);
}

void Recorder::on_list(const std::string& path, const std::vector<std::string>& names)
{
    const auto place = walk(path, LastLink::Follow);
    if (!place || names.empty())
        return;
    keep(*place, PlaceKind::Folder, "", path);
    for (const std::string& name : names)
        keep(*place + "/" + name, PlaceKind::Name, "", path + "/" + name);
}

void Recorder::on_link(const std::string& path)
{
    walk(path, LastLink::Keep);
}

void Recorder::on_answer(const std::string& list, const std::string& key, const std::string& value)
{
    recording_.answers[list].try_emplace(key, value);
}

} // namespace ostrelum::linux_platform
