#pragma once

#include "platform/linux/files/Descriptor.h"

#include <cstddef>
#include <optional>
#include <string>

namespace ostrelum::linux_platform {

/// All bytes of an open file, to its end whatever size it claims: the kernel's own files claim
/// none. Nothing, with the reason in errno, if they are more than `limit` or an error ends them.
std::optional<std::string> read_to_end(const Descriptor& file, std::size_t limit);

} // namespace ostrelum::linux_platform
