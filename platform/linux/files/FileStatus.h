#pragma once

#include "platform/linux/files/Descriptor.h"

#include <string>
#include <sys/stat.h>

/// What a failure with a file says: the name that was asked for and the system's reason.
namespace ostrelum::linux_platform {

/// Throws Failure with the reason of the last call that failed.
[[noreturn]] void fail_at(const std::string& path);

/// The status of an open file. Throws Failure, in which it is called `path`, for anything else than
/// a regular one.
struct stat regular_status(const Descriptor& file, const std::string& path);

} // namespace ostrelum::linux_platform
