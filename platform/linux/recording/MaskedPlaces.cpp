#include "platform/linux/recording/MaskedPlaces.h"

#include "platform/linux/files/PathWalk.h"
#include "platform/linux/formats/UdevRecord.h"
#include "platform/linux/text/NaturalOrder.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

/// What the program asks for by name outside of /dev, /proc and /sys, with the folders in which
/// that stands, and what systems have in the root for links.
constexpr std::array<std::string_view, 27> own_names{
    ".facts",        "bin",         "data",        "debian_version",
    "default",       "group",       "grub",        "grub.d",
    "hwdb",          "krb5.conf",   "krb5.keytab", "ld-linux-x86-64.so.2",
    "ld-linux.so.2", "lib32",       "lib64",       "libx32",
    "locale",        "locale.conf", "login.defs",  "lost+found",
    "machine-id",    "os-release",  "passwd",      "samba",
    "sbin",          "smb.conf",    "udev"};
static_assert(std::ranges::is_sorted(own_names));

bool lies_under(std::string_view path, std::string_view folder)
{
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

std::string_view last_name(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string parent(const std::string& path)
{
    return path.substr(0, path.empty() ? 0 : path.rfind('/'));
}

/// The kernel's own number of an input device, "0005:046D:B019.0003", which says only its kind.
bool is_device_number(std::string_view text)
{
    constexpr std::string_view form = "xxxx:xxxx:xxxx.xxxx";
    constexpr std::string_view hex = "0123456789ABCDEF";
    return text.size() == form.size() &&
           std::equal(form.begin(), form.end(), text.begin(), [&](char wanted, char c) {
               return wanted == 'x' ? hex.find(c) != hex.npos : wanted == c;
           });
}

/// What the kernel calls a device's battery by: its address or serial number. Empty for no battery.
std::string_view battery_owner(std::string_view name)
{
    constexpr std::string_view beginning = "hid-", end = "-battery";
    if (!name.starts_with(beginning) || !name.ends_with(end) ||
        name.size() < beginning.size() + end.size())
        return {};
    const auto owner = name.substr(beginning.size(), name.size() - beginning.size() - end.size());
    return is_device_number(owner) ? std::string_view() : owner;
}

} // namespace

MaskedPlaces::MaskedPlaces(const Recording& recording, MachinePseudonyms& given)
    : recording_(recording), given_(given)
{
    number_boot_menus();
    for (const auto& [each, place] : recording.places) {
        given_.known.add(battery_owner(last_name(each)));
        if (each.starts_with("/dev/"))
            path(each);
    }
}

void MaskedPlaces::number_boot_menus()
{
    constexpr std::string_view folder = "/etc/default/grub.d/", end = ".cfg";
    std::vector<std::string> menus;
    for (const auto& [path, place] : recording_.places) {
        if (place.asked.starts_with(folder) && path.ends_with(end) &&
            last_name(path) == last_name(place.asked))
            menus.push_back(path);
    }
    std::ranges::sort(menus, natural_less);
    for (std::size_t i = 0; i < menus.size(); ++i)
        boot_menus_.emplace(menus[i], std::to_string(i + 1) + std::string(end));
}

std::string MaskedPlaces::path(const std::string& place)
{
    if (place.empty())
        return "";
    const auto [known, is_new] = paths_.try_emplace(place);
    if (is_new) {
        const std::string folder = parent(place);
        known->second = path(folder) + "/" + name(folder, std::string(last_name(place)));
    }
    return known->second;
}

std::string MaskedPlaces::name(const std::string& folder, const std::string& name)
{
    constexpr std::string_view firmware = "/sys/firmware/efi/efivars";
    const auto menu = boot_menus_.find(folder + "/" + name);
    if (menu != boot_menus_.end())
        return menu->second;
    // The UUIDs in them are those of the makers who gave the variables their meaning.
    if (folder == firmware)
        return name;
    for (const char* kernels : {"/proc", "/sys", "/run/udev/data"}) {
        if (lies_under(folder, kernels))
            return kernel_name(name);
    }
    if (lies_under(folder, "/dev")) {
        if (folder == "/dev" ? is_kernel_device(name) : is_common_folder(name))
            return name;
        if (!is_common_folder(name))
            given_.known.add(udev_decoded(name));
    }
    const bool common = is_common_folder(name) || std::ranges::binary_search(own_names, name);
    return common ? name : given_.names.of(name);
}

std::string MaskedPlaces::kernel_name(const std::string& name)
{
    const std::string_view owner = battery_owner(name);
    if (owner.empty())
        return given_.known.hidden_in(name, Writer::Maker, given_.names);
    return "hid-" + given_.names.of(std::string(owner)) + "-battery";
}

std::string MaskedPlaces::link(const std::string& path, const std::string& text)
{
    std::string masked, folder = text.starts_with('/') ? "" : parent(path);
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find('/', at), text.size());
        const std::string each = text.substr(at, end - at);
        const bool goes_on = !each.empty() && each != "." && each != "..";
        masked += goes_on ? name(folder, each) : each;
        masked += end < text.size() ? "/" : "";
        if (goes_on)
            folder = place_of(folder + "/" + each);
        else if (each == "..")
            folder = parent(folder);
        at = end + 1;
    }
    return masked;
}

/// Where a path leads over the links of the recording.
std::string MaskedPlaces::place_of(const std::string& path) const
{
    PathWalk rest(path);
    std::string here;
    while (!rest.done()) {
        const std::string name = rest.take();
        const std::string next = name == ".." ? parent(here) : here + "/" + name;
        const auto place = recording_.places.find(next);
        if (name == ".." || place == recording_.places.end() ||
            place->second.kind != PlaceKind::Link) {
            here = next;
            continue;
        }
        if (!rest.follow(place->second.content))
            return path;
        if (place->second.content.starts_with('/'))
            here.clear();
    }
    return here;
}

} // namespace ostrelum::linux_platform
