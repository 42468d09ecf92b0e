#pragma once

#include "console/Host.h"

#include <string>
#include <vector>

namespace ostrelum::console {

/// Runs the command line; the process's exit code: 0, 1 for a failure whose reason is then on
/// standard error, 2 for a wrong command line.
int run_console(Host& host, const std::vector<std::string>& arguments);

} // namespace ostrelum::console
