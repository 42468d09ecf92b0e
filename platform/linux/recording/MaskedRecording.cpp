#include "platform/linux/recording/MaskedRecording.h"

#include "platform/linux/recording/MaskedBytes.h"
#include "platform/linux/recording/MaskedConfig.h"
#include "platform/linux/recording/MaskedPlaces.h"
#include "platform/linux/recording/MaskedTexts.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <optional>

namespace ostrelum::linux_platform {
namespace {

/// What becomes of the files whose path begins and ends so. The first rule that fits counts.
struct Rule {
    std::string_view beginning;
    std::string_view end;
    std::string (*masked)(const std::string& content, MachinePseudonyms& given);
    /// Nothing for what must not change by a byte.
    std::optional<Writer> writer = Writer::Maker;
};

template <auto mask>
std::string without_pseudonyms(const std::string& content, MachinePseudonyms&)
{
    return mask(content);
}

constexpr Rule rules[] = {
    {"/.facts/hwdb", "", masked_names},
    {"/etc/debian_version", "", first_line},
    {"/etc/default/grub", "", masked_boot_menu},
    {"/etc/default/locale", "", masked_locale},
    {"/etc/group", "", masked_groups},
    {"/etc/krb5.conf", "", masked_realm},
    {"/etc/locale.conf", "", masked_locale},
    {"/etc/login.defs", "", masked_definitions},
    {"/etc/machine-id", "", masked_machine_id},
    {"/etc/os-release", "", masked_release},
    {"/etc/passwd", "", masked_accounts},
    {"/etc/samba/smb.conf", "", masked_workgroup},
    {"/proc/", "/information", only_model},
    {"/proc/", "/mountinfo", masked_mounts},
    {"/proc/", "/mounts", masked_mounts},
    {"/proc/", "/serial-number", hidden_serial},
    {"/proc/", "/stat", masked_process},
    {"/proc/asound/", "", unchanged, Writer::Person},
    {"/proc/cpuinfo", "", masked_cpuinfo},
    {"/proc/driver/nvidia/version", "", masked_driver},
    {"/proc/sys/kernel/domainname", "", masked_domain},
    {"/proc/sys/kernel/hostname", "", hidden_host},
    {"/proc/sys/kernel/osrelease", "", unchanged, Writer::Person},
    {"/proc/sysinfo", "", only_model},
    {"/proc/version", "", masked_kernel},
    {"/proc/", "", unchanged},
    {"/run/udev/data/", "", masked_udev},
    {"/sys/", "/DMI", without_pseudonyms<masked_firmware_table>, std::nullopt},
    {"/sys/", "/dm/name", masked_name},
    {"/sys/", "/edid", without_pseudonyms<masked_edid>, std::nullopt},
    {"/sys/", "/product_serial", hidden_serial},
    {"/sys/", "/serial_number", hidden_serial},
    {"/sys/", "/wwid", masked_disk_identity},
    // Of input devices, of devices on USB and of batteries: Bluetooth ones have the name that their
    // owner gave them.
    {"/sys/", "/name", unchanged, Writer::Person},
    {"/sys/", "/manufacturer", unchanged, Writer::Person},
    {"/sys/", "/product", unchanged, Writer::Person},
    {"/sys/", "/model_name", unchanged, Writer::Person},
    {"/sys/", "", unchanged},
    {"/usr/lib/os-release", "", masked_release},
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

using Answers = decltype(Recording::answers);

Answers masked_answers(Answers answers, MachinePseudonyms& given)
{
    constexpr std::string_view user = "UserName=", language = "LANG=";
    Answers masked;
    for (const auto& [path, space] : answers["statvfs"])
        masked["statvfs"].emplace(given.names.of_path(path), space);
    for (const auto& [line, rest] : answers["passwd"])
        masked["passwd"].emplace(trimmed_space(masked_accounts(line, given)), rest);
    for (const auto& [line, rest] : answers["env"]) {
        if (line.starts_with(user))
            masked["env"].emplace(std::string(user) + given.accounts.of(line.substr(user.size())),
                                  "");
        else if (line.starts_with(language))
            masked["env"].emplace(trimmed_space(masked_locale(line, given)), "");
    }
    // The other moments are those of logins.
    for (const auto& [path, birth] : answers["btime"]) {
        if (answers["zone"].contains(birth))
            masked["zone"].emplace(birth, answers["zone"][birth]);
    }
    for (const char* list : {"btime", "hwdb", "id", "modes", "password", "uname", "vram"})
        masked[list] = answers[list];
    return masked;
}

/// What is left of texts from elsewhere may mention what is known of this machine.
void hide_mentions(Answers& answers, MachinePseudonyms& given)
{
    for (const char* list : {"hwdb", "modes", "uname", "vram"}) {
        std::map<std::string, std::string> hidden;
        for (const auto& [key, value] : answers[list])
            hidden.emplace(given.known.hidden_in(key, Writer::Maker, given.names), value);
        answers[list] = hidden;
    }
    std::erase_if(answers, [](const auto& list) { return list.second.empty(); });
}

/// What the rules leave, at the places where it was. Then all is known that they hide.
Recording by_rules(const Recording& recording, MachinePseudonyms& given)
{
    Recording ruled;
    for (const auto& [path, place] : recording.places) {
        const bool file = place.kind == PlaceKind::File;
        const Rule* rule = file ? rule_of(place) : nullptr;
        if (names_accounts(path) || names_accounts(place.asked) || (file && !rule))
            continue;
        Place kept = place;
        if (rule)
            kept.content = rule->masked(place.content, given);
        ruled.places.emplace(path, kept);
    }
    ruled.answers = masked_answers(recording.answers, given);
    return ruled;
}

std::string without_mentions(const Place& file, MachinePseudonyms& given)
{
    const auto writer = rule_of(file)->writer;
    return writer ? given.known.hidden_in(file.content, *writer, given.names) : file.content;
}

MachinePseudonyms pseudonyms_for(const std::vector<std::string>& accounts)
{
    MachinePseudonyms given{.shown = {accounts.begin(), accounts.end()}};
    for (const std::string& account : accounts) {
        given.accounts.of(account);
        given.known.add(account);
    }
    // The user's folders have his pseudonym.
    if (!accounts.empty())
        given.names.of(accounts.front());
    return given;
}

} // namespace

Recording masked_recording(const Recording& recording, const std::vector<std::string>& accounts)
{
    MachinePseudonyms given = pseudonyms_for(accounts);
    const Recording ruled = by_rules(recording, given);
    MaskedPlaces places(recording, given);
    Recording masked;
    masked.answers = ruled.answers;
    hide_mentions(masked.answers, given);
    for (const auto& [path, place] : ruled.places) {
        Place kept = place;
        if (place.kind == PlaceKind::File)
            kept.content = without_mentions(place, given);
        if (place.kind == PlaceKind::Link)
            kept.content = places.link(path, place.content);
        masked.places.emplace(places.path(path), kept);
    }
    return masked;
}

KnownIdentities identities_in(const Recording& recording, const std::vector<std::string>& accounts)
{
    MachinePseudonyms given = pseudonyms_for(accounts);
    by_rules(recording, given);
    const MaskedPlaces places(recording, given);
    return given.known;
}

} // namespace ostrelum::linux_platform
