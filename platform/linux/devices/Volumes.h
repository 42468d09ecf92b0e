#pragma once

#include "platform/linux/formats/Mounts.h"

#include <string_view>
#include <vector>

namespace ostrelum::linux_platform {

/// A volume as the user thinks of it: listed once, however often it is mounted.
struct Volume {
    /// The mount by which it is listed.
    Mount mount;
    /// Lies on another machine: by the table's text alone, since asking may wait for ever.
    bool network = false;
    /// The way to its mount point leads through a network mount, so it is not asked either.
    bool behind_network = false;
};

/// Whether a file system type lies on another machine or on the host of a virtual one.
bool is_network_type(std::string_view type);

/// The volumes of a mount table, sorted by mount point. Pseudo file systems, images, containers'
/// own mounts and the EFI partition are no volumes; "/" always is. Of several mounts of one file
/// system the one at "/" counts, then one that shows all of it, then the shortest way.
std::vector<Volume> volumes_of(const std::vector<Mount>& mounts);

} // namespace ostrelum::linux_platform
