#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// The identity of an installation for this program, made of the machine id (machine-id(5)) as
/// sd_id128_get_machine_app_specific(3) makes it: the machine id itself is to be kept from others.
/// 32 hexadecimal digits; nothing for text that is no machine id.
std::optional<std::string> installation_id(std::string_view machine_id);

} // namespace ostrelum::linux_platform
