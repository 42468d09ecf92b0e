#include "platform/linux/recording/MaskedTexts.h"

#include "platform/linux/accounts/Accounts.h"
#include "platform/linux/formats/ConfigText.h"
#include "platform/linux/formats/InstallationId.h"
#include "platform/linux/formats/Mounts.h"
#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <array>
#include <span>

namespace ostrelum::linux_platform {
namespace {

const std::string hidden(hidden_text);

/// The lines that begin with one of these.
std::string lines_with(const std::string& content, std::span<const std::string_view> beginnings)
{
    std::string kept;
    for (const std::string_view line : lines_of(content)) {
        if (std::ranges::any_of(beginnings, [&](auto each) { return line.starts_with(each); }))
            kept.append(line).append("\n");
    }
    return kept;
}

/// A table of mounts writes a blank so (fstab(5)).
std::string escaped(const std::string& text)
{
    std::string result;
    for (const char c : text)
        result += c == ' ' ? std::string("\\040") : std::string(1, c);
    return result;
}

/// A source that is no device often has the name of the type.
std::string masked_source(const Mount& mount, MachinePseudonyms& given)
{
    const bool says_nothing = mount.source == mount.type || mount.source == "composefs";
    return escaped(says_nothing ? mount.source : given.names.of_path(mount.source));
}

} // namespace

bool MachinePseudonyms::shows(const std::string& account) const
{
    return std::ranges::find(shown, account) != shown.end();
}

std::string hidden_line(const std::string& content, MachinePseudonyms&)
{
    return meaningful_text(content) ? hidden + "\n" : content;
}

std::string hidden_serial(const std::string& content, MachinePseudonyms&)
{
    return meaningful_serial(content) ? hidden + "\n" : content;
}

std::string masked_machine_id(const std::string& content, MachinePseudonyms&)
{
    return (installation_id(content) ? hidden : "uninitialized") + "\n";
}

std::string unchanged(const std::string& content, MachinePseudonyms&)
{
    return content;
}

std::string masked_accounts(const std::string& content, MachinePseudonyms& given)
{
    std::string masked;
    for (const Account& account : parse_passwd(content)) {
        if (given.shows(account.name))
            masked += given.accounts.of(account.name) + ":x:" + std::to_string(account.uid) + ":" +
                      std::to_string(account.gid) + ":" +
                      (account.full_name.empty() ? "" : hidden) + "::\n";
    }
    return masked;
}

std::string masked_groups(const std::string& content, MachinePseudonyms& given)
{
    constexpr std::array<std::string_view, 3> administrators{"admin:", "sudo:", "wheel:"};
    const std::string kept = lines_with(content, administrators);
    std::string masked;
    for (const std::string_view line : lines_of(kept)) {
        std::string word;
        for (const char c : std::string(line) + "\n") {
            const bool ends = c == ':' || c == ',' || c == '\n';
            if (ends)
                masked += (given.shows(word) ? given.accounts.of(word) : word) + c;
            word = ends ? "" : word + c;
        }
    }
    return masked;
}

std::string masked_realm(const std::string& content, MachinePseudonyms&)
{
    const auto realm = value_in_section(content, "libdefaults", "default_realm");
    return realm ? "[libdefaults]\ndefault_realm = " + hidden + "\n" : "";
}

std::string masked_workgroup(const std::string& content, MachinePseudonyms&)
{
    const auto group = value_in_section(content, "global", "workgroup");
    return group ? "[global]\nworkgroup = " + hidden + "\n" : "";
}

std::string masked_domain(const std::string& content, MachinePseudonyms& given)
{
    return trimmed_space(content) == "(none)" ? content : hidden_line(content, given);
}

std::string masked_boot_menu(const std::string& content, MachinePseudonyms&)
{
    const auto seconds = assigned(content, "GRUB_TIMEOUT");
    return seconds ? "GRUB_TIMEOUT=" + *seconds + "\n" : "";
}

std::string masked_mounts(const std::string& content, MachinePseudonyms& given)
{
    std::string masked;
    for (const Mount& mount : parse_mounts(content)) {
        const std::string target = escaped(given.names.of_path(mount.target));
        const std::string source = masked_source(mount, given);
        if (mount.id == 0)
            masked += source + " " + target + " " + mount.type + " rw 0 0\n";
        else
            masked += std::to_string(mount.id) + " " + std::to_string(mount.parent) + " " +
                      (mount.device.empty() ? "0:0" : mount.device) + " " +
                      escaped(given.names.of_path(mount.root)) + " " + target + " rw - " +
                      mount.type + " " + source + " rw\n";
    }
    return masked;
}

std::string masked_process(const std::string& content, MachinePseudonyms&)
{
    const auto end = content.rfind(')');
    return end == content.npos ? "" : "0 (" + hidden + content.substr(end);
}

/// Small boards have a line with their serial number, mainframes one with the processor's.
std::string masked_cpuinfo(const std::string& content, MachinePseudonyms&)
{
    std::string masked;
    for (const std::string_view line : lines_of(content)) {
        if (!line.starts_with("Serial"))
            masked.append(line.substr(0, line.find("identification"))).append("\n");
    }
    return masked;
}

/// In front of the build's number stand who built it and where.
std::string masked_kernel(const std::string& content, MachinePseudonyms&)
{
    const auto build = content.find(" #");
    return build == content.npos ? "" : hidden + content.substr(build);
}

std::string only_model(const std::string& content, MachinePseudonyms&)
{
    constexpr std::array<std::string_view, 3> labels{"Manufacturer:", "Model:", "Model "};
    return lines_with(content, labels);
}

std::string masked_udev(const std::string& content, MachinePseudonyms&)
{
    constexpr std::array<std::string_view, 9> keys{
        "E:ID_CDROM", "E:ID_FS_TYPE=", "E:ID_FS_VERSION=", "E:ID_INPUT",      "E:ID_MODEL",
        "E:ID_NAME=", "E:ID_VENDOR",   "E:MEMORY_ARRAY_",  "E:MEMORY_DEVICE_"};
    const std::string kept = lines_with(content, keys);
    std::string masked;
    for (const std::string_view line : lines_of(kept)) {
        const std::string_view key = line.substr(0, line.find('='));
        if (!key.ends_with("_SERIAL_NUMBER") && !key.ends_with("_ASSET_TAG"))
            masked.append(line).append("\n");
    }
    for (const char* key : {"ID_FS_LABEL_ENC", "ID_FS_UUID"}) {
        if (value_behind(content, std::string("E:") + key, '='))
            masked += std::string("E:") + key + "=" + hidden + "\n";
    }
    return masked;
}

std::string masked_name(const std::string& content, MachinePseudonyms& given)
{
    return given.names.of(std::string(trimmed_space(content))) + "\n";
}

std::string masked_disk_identity(const std::string& content, MachinePseudonyms& given)
{
    constexpr std::string_view kind = "t10.ATA";
    constexpr std::size_t model_width = 40;
    const auto model = content.find_first_not_of(" \t", kind.size());
    const bool tells_model =
        content.starts_with(kind) && model != content.npos && content.size() > model + model_width;
    return (tells_model ? content.substr(0, model + model_width) : "") +
           masked_name(content, given);
}

} // namespace ostrelum::linux_platform
