#pragma once

#include "platform/linux/files/Descriptor.h"
#include "platform/linux/files/WrittenPlace.h"

#include <string>
#include <string_view>
#include <sys/types.h>

namespace ostrelum::linux_platform {

/// Permissions of a file that nobody but its owner may read.
inline constexpr mode_t owner_alone = 0600;

/// Gives a file its next content in one step: at any moment, and after a loss of power, the name
/// leads to the old content or to the new one, whole. A symbolic link is kept and what it leads to
/// replaced. The new file takes the owner and the permissions of the old one; without an old one
/// its permissions are those asked for. Several processes take turns: the second one fails.
///
/// What the system would refuse a shell's ">" is refused, as another user's link or file in a
/// folder that all may write. The new content is written into a file of this process's own making
/// alone, never into one that lay there.
///
/// Where a new file could not be what the old one is, the old one is written over, as a shell's ">"
/// does: a file of somebody else or of a group that is not the user's, one with other names (hard
/// links), one that is mounted at its name, one in a folder that the user may not write. A full
/// disk leaves such a file as it was, too; a loss of power may not.
class FileReplacement {
public:
    /// Begins: from here to the end of the object no other process replaces the file. A file that
    /// was not there gets the permissions `new_mode`, less what the process's mask takes away.
    /// Throws Failure if the user may not write the file, or may not make it, or another process is
    /// at it.
    explicit FileReplacement(const std::string& path, mode_t new_mode = owner_alone);
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;
    /// Without a finished commit the old content stays, and nothing is left behind.
    ~FileReplacement();

    /// Throws Failure if the content cannot be stored.
    void commit(std::string_view content);

private:
    bool replaced(std::string_view content);
    void write_over(std::string_view content);

    /// As it was asked for: failures name it.
    std::string path_;
    /// Where the links of that lead.
    WrittenPlace target_;
    /// The file that is there, open for writing; none for a new one.
    Descriptor old_;
    std::string part_name_;
    /// The file that takes its place; none where the folder may not be written.
    Descriptor part_;
};

} // namespace ostrelum::linux_platform
