#pragma once

#include <optional>

namespace ostrelum::qt_platform {

/// A boolean that GNOME or a desktop of its family keeps in GSettings; nothing without the library,
/// the schema or the key.
std::optional<bool> desktop_setting(const char* schema_id, const char* key);

} // namespace ostrelum::qt_platform
