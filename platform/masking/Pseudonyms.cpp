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

/// Kinds of block devices (Documentation/admin-guide/devices.txt of the kernel) that have letters
/// and those that have a number.
constexpr std::string_view lettered_devices[] = {"dasd", "hd", "sd", "vd", "xvd"};
constexpr std::string_view numbered_devices[] = {
    "bcache", "dm-",  "drbd", "fd",  "loop", "md",  "mmcblk", "mtdblock", "nbd",
    "nvme",   "pmem", "ram",  "rbd", "sr",   "ubi", "zd",     "zram"};

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

/// Numbers, and between them the letters of a part: of "nvme0n1p3" what stands behind "nvme".
bool is_numbering(std::string_view text)
{
    constexpr std::string_view parts = "cnp_";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool part = i > 0 && i + 1 < text.size() && parts.find(text[i]) != parts.npos &&
                          is_digit(text[i - 1]) && is_digit(text[i + 1]);
        if (!is_digit(text[i]) && !part)
            return false;
    }
    return true;
}

/// "C:", as Windows calls every machine's first drive.
bool is_drive_letter(std::string_view path)
{
    return path.size() == 2 && path[1] == ':';
}

} // namespace

bool is_common_folder(std::string_view name)
{
    return std::ranges::binary_search(common_folders, name);
}

bool is_kernel_device(std::string_view name)
{
    constexpr std::size_t most_letters = 3;
    for (const std::string_view kind : lettered_devices) {
        if (!name.starts_with(kind))
            continue;
        const std::string_view unit = name.substr(kind.size());
        const auto letters = unit.find_first_not_of("abcdefghijklmnopqrstuvwxyz");
        const auto count = std::min(letters, unit.size());
        if (count > 0 && count <= most_letters && is_numbering(unit.substr(count)))
            return true;
    }
    return name == "root" || std::ranges::any_of(numbered_devices, [&](std::string_view kind) {
               return name.starts_with(kind) && name.size() > kind.size() &&
                      is_numbering(name.substr(kind.size()));
           });
}

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
    constexpr std::string_view devices = "/dev/";
    if (is_drive_letter(path) ||
        (path.starts_with(devices) && is_kernel_device(path.substr(devices.size()))))
        return std::string(path);
    std::string result;
    for (bool more = !path.empty(); more;) {
        const std::string name(path.substr(0, path.find('/')));
        result += is_common_folder(name) ? name : of(name);
        more = name.size() < path.size();
        result += more ? "/" : "";
        path.remove_prefix(std::min(name.size() + 1, path.size()));
    }
    return result;
}

} // namespace ostrelum::inline masking
