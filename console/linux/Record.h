#pragma once

#include "console/Options.h"

#include <string>

namespace ostrelum::console {

/// Copies what the pages, the report and the classes read of the machine into a folder, which is
/// then a recorded machine; without what identifies anybody, if the options say so. Throws Failure
/// if the folder is neither empty nor absent, or cannot be written; it is then as it was.
void record_machine(const Options& options, const std::string& folder);

} // namespace ostrelum::console
