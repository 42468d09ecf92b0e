#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/system/Screens.h"
#include "sources/ManagementService.h"

#include <memory>
#include <string>

namespace ostrelum::linux_platform {

/// The management service on Linux. It reads the machine under `root`: "/", or the folder of a
/// recorded machine. `session` gives what only the desktop session knows and may be empty. Throws
/// Failure if `root` is no folder.
std::unique_ptr<ManagementService> make_linux_management_service(const std::string& root,
                                                                 SessionFactsSource session);
/// The same for a root that is open; its observer sees the answers of system calls, too.
std::unique_ptr<ManagementService> make_linux_management_service(Sysroot root,
                                                                 SessionFactsSource session);

} // namespace ostrelum::linux_platform
