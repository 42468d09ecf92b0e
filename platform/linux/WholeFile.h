#pragma once

#include "platform/linux/Descriptor.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ostrelum {

/// The content of a regular file; nothing where there is none of that name. Throws Failure for
/// anything else than a regular file (a pipe would block), for one of more than `limit` bytes, and
/// if it cannot be read.
std::optional<std::string> read_whole_file(const std::string& path, std::size_t limit);

/// Gives a file its next content in one step: at any moment, and after a loss of power, the name
/// leads to the old content or to the new one, whole. A symbolic link is kept and what it leads to
/// replaced. The new file takes the owner and the permissions of the old one; without an old one
/// only its owner may read it. Several processes take turns: the second one fails.
class FileReplacement {
public:
    /// Begins: from here to the end of the object no other process replaces the file. Throws
    /// Failure if the folder cannot be written or another process is at it.
    explicit FileReplacement(const std::string& path);
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;
    /// Without a finished commit the old content stays, and nothing is left behind.
    ~FileReplacement();

    /// Throws Failure if the content cannot be stored.
    void commit(std::string_view content);

private:
    std::string target_;
    std::string part_;
    Descriptor file_;
};

} // namespace ostrelum
