#pragma once

#include <string_view>

namespace ostrelum::linux_platform {

/// Orders names by their text, and the numbers in them by their size: "sda2" before "sda10".
bool natural_less(std::string_view a, std::string_view b);

} // namespace ostrelum::linux_platform
