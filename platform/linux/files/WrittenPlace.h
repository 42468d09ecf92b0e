#pragma once

#include "platform/linux/files/Descriptor.h"

#include <string>
#include <sys/stat.h>

namespace ostrelum::linux_platform {

/// Where a path leads that is to be written, found as for a shell's ">": the kernel itself follows
/// the links and looks at the file, so that what it refuses in folders that all may write (links
/// and files of others, proc_sys_fs(5), `protected_symlinks` and `protected_regular`) is refused.
struct WrittenPlace {
    /// The folder, open for names in it alone; it stays the same one whatever it is called.
    Descriptor folder;
    std::string name;
    /// The file that is there, open for writing; none where there is none yet.
    Descriptor file;
};

/// Throws Failure: another process is at the file.
[[noreturn]] void fail_in_use(const std::string& path);

/// Throws Failure if the user may not write the file, or it is no regular one. What is no regular
/// file is not opened: with some devices that alone does something.
WrittenPlace find_written_place(const std::string& path);

/// Whether the name in the folder is that file's, and not a link's to it.
bool leads_to(const Descriptor& folder, const std::string& name, const struct stat& status);

} // namespace ostrelum::linux_platform
