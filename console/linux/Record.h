#pragma once

#include "console/Options.h"
#include "platform/linux/files/Sysroot.h"
#include "platform/masking/KnownIdentities.h"

#include <string>

namespace ostrelum::console {

/// Copies what the pages, the report and the classes read of the machine into a folder, which is
/// then a recorded machine; without what identifies anybody, if the options say so. Throws Failure
/// if the folder is neither empty nor absent, or cannot be written; it is then as it was.
void record_machine(const Options& options, const std::string& folder);

/// What a masked recording of the machine does not tell.
KnownIdentities identities_of(const linux_platform::Sysroot& files, const std::string& own_account);

} // namespace ostrelum::console
