#pragma once

#include "platform/linux/formats/EdidTiming.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The data of a monitor about itself (VESA Enhanced EDID Standard, release A, revision 2, with the
/// extension blocks of CTA-861 and of DisplayID).
namespace ostrelum::linux_platform {

struct Edid {
    /// Three letters that UEFI's PNP registry gives to makers, such as "SAM"; empty if they are
    /// none.
    std::string maker;
    /// The maker's number for the model.
    std::uint16_t product = 0;
    /// Name of the product: the first that is not empty, with the descriptors in which it goes on
    /// if it fills its own. Empty for none.
    std::string name;
    /// Free text, in which makers of built-in panels write the part number: the last of several.
    /// Empty for none.
    std::string free_text;
    /// Vertical rates that the monitor says it follows.
    std::optional<RefreshRange> limits;
    /// Vertical rates between those of all modes that it lists.
    std::optional<RefreshRange> rates_of_modes;
    /// The preferred mode comes first.
    std::vector<EdidTiming> detailed;
};

/// Reads blocks of 128 bytes. Nothing for other data and for a first block whose check sum is
/// wrong; an extension with a wrong one, or that ends early, is passed over. The texts
/// are ASCII without blanks round them.
std::optional<Edid> read_edid(std::string_view bytes);

} // namespace ostrelum::linux_platform
