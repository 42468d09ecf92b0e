#pragma once

#include "platform/linux/files/Descriptor.h"

#include <cstddef>
#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// What tells that a file has been read to its end.
enum class FileEnd : bool {
    /// A read of nothing. Such is the end of what the kernel writes line by line (/proc).
    Nothing,
    /// A read of less than the kernel's page, too: that of all other files, which saves a call for
    /// each of the many that hold one value.
    LessThanAPage,
};

/// All bytes of an open file, to its end whatever size it claims: the kernel's own files claim
/// none. Nothing, with the reason in errno, if they are more than `limit` or an error ends them.
std::optional<std::string> read_to_end(const Descriptor& file, std::size_t limit,
                                       FileEnd end = FileEnd::Nothing);

} // namespace ostrelum::linux_platform
