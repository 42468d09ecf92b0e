#pragma once

#include "platform/linux/recording/MachinePseudonyms.h"
#include "platform/linux/recording/Recording.h"

#include <map>
#include <string>

namespace ostrelum::linux_platform {

/// The places of a recording without what identifies anybody in their names and in the texts of
/// links, which lead where they led. Names that the program asks for and those that all systems
/// have stay; under /dev also the kernel's; under /proc and /sys all but identities in them. All
/// others get pseudonyms.
class MaskedPlaces {
public:
    /// Both must outlive it. Names of volumes and of batteries become known.
    MaskedPlaces(const Recording& recording, MachinePseudonyms& given);

    std::string path(const std::string& place);

    /// The text of the link at that path.
    std::string link(const std::string& path, const std::string& text);

private:
    void number_boot_menus();
    std::string name(const std::string& folder, const std::string& name);
    std::string kernel_name(const std::string& name);
    std::string place_of(const std::string& path) const;

    const Recording& recording_;
    MachinePseudonyms& given_;
    /// By path: files of the boot menu, which are read in the order of their names.
    std::map<std::string, std::string> boot_menus_;
    std::map<std::string, std::string> paths_;
};

} // namespace ostrelum::linux_platform
