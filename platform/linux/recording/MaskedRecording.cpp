#include "platform/linux/recording/MaskedRecording.h"

#include "platform/linux/recording/MaskedBytes.h"
#include "platform/linux/recording/MaskedTexts.h"
#include "platform/linux/text/Text.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

/// What becomes of the files whose path begins and ends so. The first rule that fits counts.
struct Rule {
    std::string_view beginning;
    std::string_view end;
    std::string (*masked)(const std::string& content, MachinePseudonyms& given);
};

template <auto mask>
std::string without_pseudonyms(const std::string& content, MachinePseudonyms&)
{
    return mask(content);
}

constexpr Rule rules[] = {
    {"/.facts/hwdb", "", unchanged},
    {"/etc/debian_version", "", unchanged},
    {"/etc/default/grub", "", masked_boot_menu},
    {"/etc/default/locale", "", unchanged},
    {"/etc/group", "", masked_groups},
    {"/etc/krb5.conf", "", masked_realm},
    {"/etc/locale.conf", "", unchanged},
    {"/etc/login.defs", "", unchanged},
    {"/etc/machine-id", "", masked_machine_id},
    {"/etc/os-release", "", unchanged},
    {"/etc/passwd", "", masked_accounts},
    {"/etc/samba/smb.conf", "", masked_workgroup},
    {"/proc/", "/information", only_model},
    {"/proc/", "/mountinfo", masked_mounts},
    {"/proc/", "/mounts", masked_mounts},
    {"/proc/", "/serial-number", hidden_serial},
    {"/proc/", "/stat", masked_process},
    {"/proc/cpuinfo", "", masked_cpuinfo},
    {"/proc/sys/kernel/domainname", "", masked_domain},
    {"/proc/sys/kernel/hostname", "", hidden_line},
    {"/proc/sysinfo", "", only_model},
    {"/proc/version", "", masked_kernel},
    {"/proc/", "", unchanged},
    {"/run/udev/data/", "", masked_udev},
    {"/sys/", "/DMI", without_pseudonyms<masked_firmware_table>},
    {"/sys/", "/dm/name", masked_name},
    {"/sys/", "/edid", without_pseudonyms<masked_edid>},
    {"/sys/", "/product_serial", hidden_serial},
    {"/sys/", "/serial_number", hidden_serial},
    {"/sys/", "/wwid", masked_disk_identity},
    {"/sys/", "", unchanged},
    {"/usr/lib/os-release", "", unchanged},
};

/// By the path that was asked for: links lead to other places on every system.
const Rule* rule_of(const Place& place)
{
    const auto rule = std::ranges::find_if(rules, [&](const Rule& each) {
        return place.asked.starts_with(each.beginning) && place.asked.ends_with(each.end);
    });
    return rule == std::end(rules) ? nullptr : rule;
}

/// Folders in which files are named after accounts.
bool names_accounts(const std::string& path)
{
    return path.starts_with("/run/faillock/") || path.starts_with("/var/log/");
}

/// Below /dev stand the names of volumes.
std::string masked_path(const std::string& path, MachinePseudonyms& given)
{
    return path.starts_with("/dev/") ? given.names.of_path(path) : path;
}

using Answers = decltype(Recording::answers);

Answers masked_answers(Answers answers, MachinePseudonyms& given)
{
    constexpr std::string_view user = "UserName=";
    Answers masked;
    for (const auto& [path, space] : answers["statvfs"])
        masked["statvfs"].emplace(given.names.of_path(path), space);
    for (const auto& [line, rest] : answers["passwd"])
        masked["passwd"].emplace(trimmed_space(masked_accounts(line, given)), rest);
    for (const auto& [line, rest] : answers["env"]) {
        const bool name = line.starts_with(user);
        masked["env"].emplace(
            name ? std::string(user) + given.accounts.of(line.substr(user.size())) : line, rest);
    }
    // The other moments are those of logins.
    for (const auto& [path, birth] : answers["btime"]) {
        if (answers["zone"].contains(birth))
            masked["zone"].emplace(birth, answers["zone"][birth]);
    }
    for (const char* list : {"btime", "hwdb", "id", "modes", "password", "uname", "vram"})
        masked[list] = answers[list];
    std::erase_if(masked, [](const auto& list) { return list.second.empty(); });
    return masked;
}

} // namespace

Recording masked_recording(const Recording& recording, const std::vector<std::string>& accounts)
{
    MachinePseudonyms given{.shown = accounts};
    for (const std::string& account : accounts)
        given.accounts.of(account);
    Recording masked;
    masked.answers = masked_answers(recording.answers, given);
    for (const auto& [path, place] : recording.places) {
        const bool file = place.kind == PlaceKind::File;
        const Rule* rule = file ? rule_of(place) : nullptr;
        if (names_accounts(path) || (file && !rule))
            continue;
        Place kept = place;
        if (rule)
            kept.content = rule->masked(place.content, given);
        masked.places.emplace(masked_path(path, given), kept);
    }
    return masked;
}

} // namespace ostrelum::linux_platform
