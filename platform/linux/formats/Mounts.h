#pragma once

#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// One line of a mount table (proc_pid_mountinfo(5)), escapes resolved.
struct Mount {
    /// Numbers of the mount and of the one that it lies on; 0 where the table has none.
    int id = 0;
    int parent = 0;
    /// "major:minor" of the file system; empty where the table has none.
    std::string device;
    /// Folder of the file system that is mounted, "/" for all of it.
    std::string root;
    std::string target;
    std::string type;
    std::string source;
};

/// The lines of a mount table in the form of mountinfo or of mounts. Lines that are neither are
/// left out.
std::vector<Mount> parse_mounts(const std::string& table);

} // namespace ostrelum::linux_platform
