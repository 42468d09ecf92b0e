#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// The content of a regular file; nothing where there is none of that name. Throws Failure for
/// anything else than a regular file (a pipe would block), for one of more than `limit` bytes, and
/// if it cannot be read.
std::optional<std::string> read_whole_file(const std::string& path, std::size_t limit);

} // namespace ostrelum::linux_platform
