#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace ostrelum::linux_platform {

/// What a recording holds of a place of the machine. Where accesses differ, the last one in this
/// order counts.
enum class PlaceKind {
    /// There, but only its name was asked for.
    Name,
    /// There, but it could not be read.
    Unreadable,
    Folder,
    Link,
    File,
};

struct Place {
    PlaceKind kind = PlaceKind::Name;
    /// Bytes of a file, text of a link.
    std::string content;
    /// The path by which it was asked for, which may lead over links.
    std::string asked;
};

/// All that a recording holds, before it is written to a folder.
struct Recording {
    /// By path, which leads over no link.
    std::map<std::string, Place> places;
    /// Pieces of files too long to be taken whole, by path and first byte.
    std::map<std::pair<std::string, std::uint64_t>, std::string> pieces;
    /// Answers of system calls: of each file in /.facts the values by key (AccessObserver.h).
    std::map<std::string, std::map<std::string, std::string>> answers;
};

/// Throws Failure unless the folder is empty or not there.
void check_unused(const std::string& folder);

/// Writes the machine into a folder that is empty or not there, and that only its owner can then
/// read: whole, or not at all. What could not be read becomes an empty folder, and what is only
/// a name an empty file. Throws Failure if that does not succeed.
void write_recording(const Recording& recording, const std::string& folder);

} // namespace ostrelum::linux_platform
