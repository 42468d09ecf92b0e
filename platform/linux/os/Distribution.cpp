#include "platform/linux/os/Distribution.h"

#include "platform/linux/formats/ConfigText.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <array>

namespace ostrelum::linux_platform {
namespace {

/// Distributions whose version is the release and the number of its renewal.
constexpr std::array<std::string_view, 10> enterprise_ids{
    "almalinux",     "centos", "eurolinux", "miraclelinux", "ol",
    "opensuse-leap", "rhel",   "rocky",     "sles",         "virtuozzo"};
static_assert(std::ranges::is_sorted(enterprise_ids));

} // namespace

Distribution::Distribution(const Sysroot& root) : root_(root)
{
    auto text = root.read("/etc/os-release");
    if (!text)
        text = root.read("/usr/lib/os-release");
    text_ = text.value_or("");
}

std::optional<std::string> Distribution::name() const
{
    if (auto pretty = assigned(text_, "PRETTY_NAME"))
        return pretty;
    return assigned(text_, "NAME");
}

std::uint32_t Distribution::point_release() const
{
    const std::string id = assigned(text_, "ID").value_or("");
    if (id == "debian")
        return dotted_number(root_.text("/etc/debian_version").value_or(""), 1);
    if (id == "ubuntu")
        return dotted_number(assigned(text_, "VERSION").value_or(""), 2);
    if (std::ranges::binary_search(enterprise_ids, id))
        return dotted_number(assigned(text_, "VERSION_ID").value_or(""), 1);
    return 0;
}

std::uint32_t dotted_number(std::string_view version, std::size_t place)
{
    for (; place > 0; --place) {
        const auto dot = version.find('.');
        if (dot == version.npos)
            return 0;
        version.remove_prefix(dot + 1);
    }
    const auto end = std::min(version.find_first_not_of("0123456789"), version.size());
    const auto number = whole_number(version.substr(0, end));
    return number && *number <= UINT16_MAX ? static_cast<std::uint32_t>(*number) : 0;
}

} // namespace ostrelum::linux_platform
