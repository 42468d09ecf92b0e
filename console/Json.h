#pragma once

#include "sources/ManagementService.h"

#include <string>

namespace ostrelum::console {

/// The objects as a JSON array in UTF-8: null, booleans, numbers and lists as such, all other
/// values as strings; keys in the objects' own order.
std::string as_json(const ResultSet& objects);

} // namespace ostrelum::console
