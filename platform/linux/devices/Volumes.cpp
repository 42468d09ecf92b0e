#include "platform/linux/devices/Volumes.h"

#include "platform/linux/text/NaturalOrder.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <tuple>

namespace ostrelum::linux_platform {
namespace {

template <std::size_t Count>
bool contains(const std::array<std::string_view, Count>& sorted, std::string_view name)
{
    return std::ranges::binary_search(sorted, name);
}

/// Types without data of their own, or whose data is listed with another mount.
constexpr std::array<std::string_view, 31> pseudo_types{
    "autofs",    "binder", "binfmt_misc", "bpf",        "cgroup",     "cgroup2",   "configfs",
    "debugfs",   "devpts", "devtmpfs",    "efivarfs",   "erofs",      "fuse",      "fusectl",
    "hugetlbfs", "mqueue", "nfsd",        "none",       "nsfs",       "overlay",   "pipefs",
    "proc",      "pstore", "ramfs",       "rpc_pipefs", "securityfs", "selinuxfs", "squashfs",
    "sysfs",     "tmpfs",  "tracefs"};
static_assert(std::ranges::is_sorted(pseudo_types));

constexpr std::array<std::string_view, 24> network_types{
    "9p",        "afs",           "beegfs",         "ceph",        "cifs",           "coda",
    "davfs",     "fuse.ceph",     "fuse.curlftpfs", "fuse.davfs2", "fuse.glusterfs", "fuse.rclone",
    "fuse.s3fs", "fuse.smbnetfs", "fuse.sshfs",     "glusterfs",   "gpfs",           "lustre",
    "ncpfs",     "nfs",           "nfs4",           "smb3",        "smbfs",          "virtiofs"};
static_assert(std::ranges::is_sorted(network_types));

/// Folders under which mounts belong to the system, not to the user.
constexpr std::array<std::string_view, 10> system_folders{"/dev",
                                                          "/proc",
                                                          "/snap",
                                                          "/sys",
                                                          "/var/lib/containerd",
                                                          "/var/lib/containers",
                                                          "/var/lib/docker",
                                                          "/var/lib/flatpak",
                                                          "/var/lib/lxcfs",
                                                          "/var/lib/snapd"};

bool lies_under(std::string_view path, std::string_view folder)
{
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

bool in_system_folder(std::string_view target)
{
    if (lies_under(target, "/run"))
        return !lies_under(target, "/run/media") && !lies_under(target, "/run/live");
    return std::ranges::any_of(system_folders,
                               [&](std::string_view folder) { return lies_under(target, folder); });
}

bool is_efi_partition(const Mount& mount)
{
    return mount.type == "vfat" &&
           (mount.target == "/boot/efi" || mount.target == "/efi" || mount.target == "/boot");
}

bool is_volume(const Mount& mount)
{
    if (mount.target == "/")
        return true;
    if (mount.target.empty() || in_system_folder(mount.target) || is_efi_partition(mount))
        return false;
    if (is_network_type(mount.type))
        return true;
    return !contains(pseudo_types, mount.type) && !mount.type.starts_with("fuse.") &&
           !mount.source.starts_with("/dev/loop");
}

/// What the mounts of one file system have in common.
std::string identity(const Mount& mount)
{
    if (mount.type == "zfs")
        return "zfs " + mount.source.substr(0, mount.source.find('/'));
    return mount.device.empty() ? mount.source : mount.device;
}

/// The smaller, the better the mount stands for its file system.
auto rank(const Mount& mount)
{
    const auto depth = std::ranges::count(mount.target, '/');
    return std::tuple(mount.target != "/", mount.root != "/", depth, mount.target.size(),
                      mount.target);
}

/// A group of mounts of parts alone is not the user's: a container's /etc/hosts, say. Subvolumes
/// are.
bool shows_only_parts(const Mount& best)
{
    return best.target != "/" && !best.root.empty() && best.root != "/" && best.type != "btrfs";
}

/// The last mount at a place is the one that is seen there.
std::vector<Mount> visible(const std::vector<Mount>& mounts)
{
    std::map<std::string, const Mount*> last;
    for (const Mount& mount : mounts)
        last[mount.target] = &mount;
    std::vector<Mount> seen;
    seen.reserve(last.size());
    for (const auto& [target, mount] : last)
        seen.push_back(*mount);
    return seen;
}

/// On a system whose "/" is an image of links, the volume behind it is the one of /sysroot or /var.
void replace_image_root(std::vector<Mount>& mounts)
{
    const auto at = [&](std::string_view target) {
        return std::ranges::find(mounts, target, &Mount::target);
    };
    const auto root = at("/");
    if (root == mounts.end() || (root->source != "composefs" && root->type != "composefs"))
        return;
    auto behind = at("/sysroot");
    if (behind == mounts.end())
        behind = at("/var");
    if (behind == mounts.end())
        return;
    behind->target = "/";
    mounts.erase(root);
}

/// Which mounts the way leads to over a network's. Each mount is looked at once for all that lie on
/// it.
class NetworkWays {
public:
    explicit NetworkWays(const std::vector<Mount>& mounts)
    {
        for (const Mount& mount : mounts) {
            by_number_.try_emplace(mount.id, &mount);
            if (is_network_type(mount.type)) {
                targets_.insert(mount.target);
                lengths_.insert(mount.target.size());
            }
        }
    }

    bool lead_to(const Mount& mount)
    {
        return mount.id == 0 ? lies_under_network(mount) : below_is_network(mount);
    }

private:
    /// For a table without numbers: a network mount at a folder above.
    bool lies_under_network(const Mount& mount) const
    {
        const std::string_view target = mount.target;
        return std::ranges::any_of(lengths_, [&](std::size_t length) {
            return length < target.size() && target[length] == '/' &&
                   targets_.contains(target.substr(0, length));
        });
    }

    /// Mounts that lie on each other in a circle lie on no network's.
    bool below_is_network(const Mount& mount)
    {
        std::vector<int> way;
        int at = mount.parent;
        bool over_network = false;
        while (at != 0) {
            const auto [answer, is_new] = over_network_.try_emplace(at, false);
            const auto below = by_number_.find(at);
            over_network = answer->second;
            if (!is_new || below == by_number_.end())
                break;
            way.push_back(at);
            over_network = is_network_type(below->second->type);
            if (over_network)
                break;
            at = below->second->parent;
        }
        for (const int passed : way)
            over_network_[passed] = over_network;
        return over_network;
    }

    std::map<int, const Mount*> by_number_;
    std::map<int, bool> over_network_;
    std::set<std::string_view> targets_;
    std::set<std::size_t> lengths_;
};

} // namespace

bool is_network_type(std::string_view type)
{
    return contains(network_types, type);
}

std::vector<Volume> volumes_of(const std::vector<Mount>& mounts)
{
    std::vector<Mount> seen = visible(mounts);
    replace_image_root(seen);
    std::map<std::string, Mount> best;
    for (const Mount& mount : seen) {
        if (!is_volume(mount))
            continue;
        const auto [group, is_new] = best.try_emplace(identity(mount), mount);
        if (!is_new && rank(mount) < rank(group->second))
            group->second = mount;
    }
    NetworkWays network_ways(mounts);
    std::vector<Volume> volumes;
    for (const auto& [key, mount] : best) {
        const bool network = is_network_type(mount.type);
        if (network || !shows_only_parts(mount))
            volumes.push_back({mount, network, network_ways.lead_to(mount)});
    }
    std::ranges::sort(volumes, natural_less,
                      [](const Volume& volume) { return std::string_view(volume.mount.target); });
    return volumes;
}

} // namespace ostrelum::linux_platform
