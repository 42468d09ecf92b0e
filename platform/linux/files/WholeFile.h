#pragma once

#include "platform/linux/files/Descriptor.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace ostrelum::linux_platform {

/// The content of a regular file; nothing where there is none of that name. Throws Failure for
/// anything else than a regular file (a pipe would block), for one of more than `limit` bytes, and
/// if it cannot be read.
std::optional<std::string> read_whole_file(const std::string& path, std::size_t limit);

/// Permissions of a file that nobody but its owner may read.
inline constexpr mode_t owner_alone = 0600;

/// Gives a file its next content in one step: at any moment, and after a loss of power, the name
/// leads to the old content or to the new one, whole. A symbolic link is kept and what it leads to
/// replaced. The new file takes the owner and the permissions of the old one; without an old one
/// its permissions are those asked for. Several processes take turns: the second one fails.
class FileReplacement {
public:
    /// Begins: from here to the end of the object no other process replaces the file. A file that
    /// was not there gets the permissions `new_mode`, less what the process's mask takes away.
    /// Throws Failure if the folder cannot be written or another process is at it.
    explicit FileReplacement(const std::string& path, mode_t new_mode = owner_alone);
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

} // namespace ostrelum::linux_platform
