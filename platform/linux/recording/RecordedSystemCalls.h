#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/linux/files/SystemCalls.h"

#include <memory>

namespace ostrelum::linux_platform {

/// The answers that a recorded machine keeps in the folder /.facts: the files statvfs (path, block
/// size, blocks, free, available), btime (path, seconds), uname (as `uname -a` prints it), id (as
/// `id` prints it), env (NAME=value), modes (connector, width, height, bits, thousandths of hertz),
/// vram (PCI place, bytes), hwdb (alias, key, "=" and what the hardware
/// database has for it), password (user number, 1 if it expires, 1 if it may be changed), login
/// (user number, seconds), passwd (lines of accounts from a directory), zone (moment, minutes ahead
/// of UTC; at other moments the machine stands in UTC).
std::unique_ptr<SystemCalls> recorded_system_calls(const Sysroot& root);

} // namespace ostrelum::linux_platform
