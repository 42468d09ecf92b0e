#include "fuzz/Target.h"
#include "platform/linux/devices/Volumes.h"
#include "platform/linux/text/NaturalOrder.h"
#include "sources/Utf8.h"

/// Any bytes as a mount table: its volumes are mounts of it, each place once and in order, and the
/// ways over network mounts end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ostrelum;
    using namespace ostrelum::linux_platform;
    const auto mounts = parse_mounts(std::string(data, data + size));
    for (const Mount& mount : mounts) {
        if (!valid_utf8(mount.root + mount.target + mount.type + mount.source))
            std::abort();
    }
    std::string last;
    for (const Volume& volume : volumes_of(mounts)) {
        const Mount& mount = volume.mount;
        const bool known = std::ranges::find(mounts, mount.source, &Mount::source) != mounts.end();
        const bool in_order = natural_less(last, mount.target);
        if (!known || !in_order || volume.network != is_network_type(mount.type))
            std::abort();
        last = mount.target;
    }
    return 0;
}
