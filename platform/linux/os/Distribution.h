#pragma once

#include "platform/linux/files/Sysroot.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// What a distribution says about itself (os-release(5)).
class Distribution {
public:
    explicit Distribution(const Sysroot& root);

    /// Its name with its version; nothing if it has no such file.
    std::optional<std::string> name() const;

    /// How often it was renewed as a whole since its release: the 8 of Debian 12.8, the 3 of
    /// Ubuntu 24.04.3, the 4 of an enterprise release 9.4; 0 where it is not known.
    std::uint32_t point_release() const;

private:
    const Sysroot& root_;
    std::string text_;
};

/// The number at a place among those that dots divide, counted from 0, such as 3 at place 2 of
/// "24.04.3 LTS". 0 for none.
std::uint32_t dotted_number(std::string_view version, std::size_t place);

} // namespace ostrelum::linux_platform
