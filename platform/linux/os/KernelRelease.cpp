#include "platform/linux/os/KernelRelease.h"

#include "platform/linux/text/Text.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

/// Takes the digits off the front of a text.
std::string take_digits(std::string_view& text)
{
    const auto end = std::min(text.find_first_not_of("0123456789"), text.size());
    std::string digits(text.substr(0, end));
    text.remove_prefix(end);
    return digits;
}

/// The same behind a dot; empty if there is no dot and digit.
std::string take_dotted(std::string_view& text)
{
    if (text.size() < 2 || text[0] != '.' || text[1] < '0' || text[1] > '9')
        return {};
    text.remove_prefix(1);
    return take_digits(text);
}

/// The last part of what is shown, of which a page keeps that many characters.
constexpr std::size_t shown_width = 4;

/// The digits right behind the first hyphen: the build of a distribution. Empty where letters stand
/// there, as in "-arch1-1" and "-rc2", and for a number that would be cut.
std::string build_number(std::string_view rest)
{
    const auto hyphen = rest.find('-');
    if (hyphen == rest.npos)
        return {};
    rest.remove_prefix(hyphen + 1);
    std::string digits = take_digits(rest);
    return digits.size() <= shown_width ? digits : "";
}

std::string four_digits(const std::string& digits)
{
    return std::string(shown_width - std::min(digits.size(), shown_width), '0') + digits;
}

/// By what is known of the processor, for a recorded machine without anything else: flag "lm" is
/// 64-bit mode on x86.
std::optional<std::string> architecture_of_cpuinfo(const Sysroot& root)
{
    const std::string cpuinfo = root.read("/proc/cpuinfo").value_or("");
    if (const auto flags = value_behind(cpuinfo, "flags", ':')) {
        const auto words = words_of(*flags);
        return std::ranges::find(words, "lm") != words.end() ? "x86_64" : "i686";
    }
    const auto arm = value_behind(cpuinfo, "CPU architecture", ':');
    return arm ? std::optional<std::string>(*arm == "8" ? "aarch64" : "armv7l") : std::nullopt;
}

} // namespace

std::optional<std::string> kernel_architecture(const MachineView& machine)
{
    if (auto kind = machine.root.text("/proc/sys/kernel/arch"))
        return kind;
    if (auto kind = machine.system_calls->processor_kind())
        return kind;
    return architecture_of_cpuinfo(machine.root);
}

std::optional<std::string> kernel_version_text(std::string_view release)
{
    const std::string major = take_digits(release);
    const std::string minor = take_dotted(release);
    if (major.empty() || minor.empty())
        return std::nullopt;
    if (minor.size() > 1)
        return major + ".x " + major + "." + minor;
    const std::string patch = take_dotted(release);
    const std::string build = build_number(release);
    const std::string both = patch + "-" + build;
    if (!patch.empty() && !build.empty() && both.size() == shown_width)
        return major + "." + minor + "." + both;
    return major + "." + minor + "." + four_digits(build.empty() ? patch : build);
}

} // namespace ostrelum::linux_platform
