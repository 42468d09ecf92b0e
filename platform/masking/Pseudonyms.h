#pragma once

#include <map>
#include <string>
#include <string_view>

namespace ostrelum::inline masking {

/// What stands in place of something that identifies somebody.
inline constexpr std::string_view hidden_text = "(hidden)";

/// Whether a text is one of the pseudonyms below, as recordings have them in place of an identity.
bool is_pseudonym(std::string_view text);

/// Whether all systems have a folder of that name.
bool is_common_folder(std::string_view name);

/// Whether the kernel gives a block device such a name under /dev, as "sda1" and "nvme0n1p3".
bool is_kernel_device(std::string_view name);

/// Pseudonyms for names that must still be distinguished: "(hidden)" for the first one, then
/// "(hidden 2)" and so on; the same for the same name. A pseudonym stays what it is.
class Pseudonyms {
public:
    std::string of(const std::string& name);

    /// The path with pseudonyms for the folders that are not the same on all systems. A device
    /// right under /dev stays if its name is the kernel's.
    std::string of_path(std::string_view path);

private:
    std::map<std::string, std::string> given_;
};

} // namespace ostrelum::inline masking
