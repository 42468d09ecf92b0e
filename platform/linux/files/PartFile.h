#pragma once

#include "platform/linux/files/Descriptor.h"

#include <string>
#include <sys/types.h>

/// The file beside another one that gets its next content before it takes its name.
namespace ostrelum::linux_platform {

/// Under the name of the file where there is room in a name for more.
std::string part_name(const std::string& name);

/// Takes the file for this process alone, as far as the file system knows locks. The name is looked
/// at again once the lock is had: its last holder may have put another file there.
void hold(const Descriptor& folder, const std::string& name, const Descriptor& file,
          const std::string& path);

/// A file of this process's own making under that name, open for writing and held; what a killed
/// process left there is cleared away. None, and the reason in errno, if it cannot be made. Throws
/// Failure if another process is at it, or somebody else's file lies there.
Descriptor make_part(const Descriptor& folder, const std::string& name, mode_t mode,
                     const std::string& path);

/// Whether make_part just failed because the folder is not the user's to write.
bool is_closed_folder();

} // namespace ostrelum::linux_platform
