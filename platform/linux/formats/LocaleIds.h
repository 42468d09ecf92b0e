#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ostrelum::linux_platform {

/// The number by which the service names the language of a locale such as "es_AR.UTF-8" (Windows
/// language code identifiers, MS-LCID). A country that is not known counts as the language's first;
/// "C" and "POSIX" are English. Nothing for a language that is not known.
std::optional<std::uint32_t> locale_id(std::string_view locale);

} // namespace ostrelum::linux_platform
