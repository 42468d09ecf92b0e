#pragma once

#include "platform/linux/files/Descriptor.h"

#include <optional>
#include <string>

/// Finding files under a folder that stands for a whole machine's root.
namespace ostrelum::linux_platform {

/// Whether a symbolic link at the end of a path is followed, or is itself the file that is meant.
enum class LastLink : bool { Follow, Keep };

/// A place (O_PATH) under the folder `root`: neither ".." nor an absolute symbolic link leads out
/// of it, and the kernel's magic links (such as /proc/self/cwd) lead nowhere. Nothing there: none.
Descriptor resolve_in_root(int root, const std::string& path, LastLink last);

/// The same without the kernel's help: for kernels before 5.6, for sandboxes that refuse openat2,
/// and for the moments in which the kernel puts off its answer.
Descriptor resolve_by_hand(int root, const std::string& path, LastLink last);

/// Opens what the kernel provides under /proc and /sys of the running system. A page asks for
/// hundreds of files there, mostly for many of one folder: the one that was listed last stays open,
/// which saves the way to it.
class KernelFiles {
public:
    /// Opens for reading. There are no device nodes, pipes and sockets among these files, so that
    /// looking first at what a place is would only double the calls. Nothing if the kernel does not
    /// help.
    std::optional<Descriptor> open(int root, const std::string& path) const;

    /// A folder that has been listed.
    void keep(const std::string& path, Descriptor folder);

private:
    std::string path_;
    Descriptor folder_;
};

/// The text of the symbolic link that a place is; nothing for any other file.
std::optional<std::string> link_text(const Descriptor& place);

} // namespace ostrelum::linux_platform
