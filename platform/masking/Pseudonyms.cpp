#include "platform/masking/Pseudonyms.h"

#include <algorithm>
#include <array>

namespace ostrelum::inline masking {
namespace {

/// Filesystem Hierarchy Standard 3.0, and the folders in which systems keep containers and mounts.
constexpr std::array<std::string_view, 41> common_folders{
    "boot",       "by-id",      "by-label", "by-partlabel", "by-partuuid", "by-path", "by-uuid",
    "containerd", "containers", "dev",      "disk",         "docker",      "efi",     "esp",
    "etc",        "export",     "flatpak",  "home",         "lib",         "live",    "local",
    "log",        "lxcfs",      "mapper",   "media",        "mnt",         "opt",     "overlay2",
    "proc",       "root",       "run",      "snap",         "snapd",       "srv",     "storage",
    "sys",        "sysroot",    "tmp",      "user",         "usr",         "var"};
static_assert(std::ranges::is_sorted(common_folders));

constexpr std::string_view beginning = "(hidden";

bool is_kernel_device(std::string_view path)
{
    constexpr std::string_view devices = "/dev/";
    return path.starts_with(devices) && path.find('/', devices.size()) == path.npos;
}

} // namespace

bool is_pseudonym(std::string_view text)
{
    return text.starts_with(beginning) && text.ends_with(')');
}

std::string Pseudonyms::of(const std::string& name)
{
    if (name.empty() || is_pseudonym(name))
        return name;
    const std::string number = given_.empty() ? "" : " " + std::to_string(given_.size() + 1);
    return given_.try_emplace(name, std::string(beginning) + number + ")").first->second;
}

std::string Pseudonyms::of_path(std::string_view path)
{
    if (is_kernel_device(path))
        return std::string(path);
    std::string result;
    for (bool more = !path.empty(); more;) {
        const std::string name(path.substr(0, path.find('/')));
        result += std::ranges::binary_search(common_folders, name) ? name : of(name);
        more = name.size() < path.size();
        result += more ? "/" : "";
        path.remove_prefix(std::min(name.size() + 1, path.size()));
    }
    return result;
}

} // namespace ostrelum::inline masking
