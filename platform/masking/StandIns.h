#pragma once

#include <map>
#include <string>
#include <string_view>

namespace ostrelum {

/// What stands where something that identifies was.
inline constexpr std::string_view Hidden = "(hidden)";

/// Whether a text is one of the stand-ins below, as recordings have them in place of an identity.
bool is_stand_in(std::string_view text);

/// Stand-ins for names that must still be told from each other: "(hidden)" for the first one, then
/// "(hidden 2)" and so on; the same for the same name. A stand-in stays what it is.
class StandIns {
public:
    std::string of(const std::string& name);

    /// The path with stand-ins for the folders that are not the same on all systems. A device
    /// right under /dev is the kernel's and stays.
    std::string of_path(std::string_view path);

private:
    std::map<std::string, std::string> given_;
};

} // namespace ostrelum
