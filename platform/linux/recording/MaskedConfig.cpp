#include "platform/linux/recording/MaskedConfig.h"

#include "platform/linux/accounts/Accounts.h"
#include "platform/linux/formats/ConfigText.h"
#include "platform/linux/formats/InstallationId.h"
#include "platform/linux/formats/LocaleIds.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

const std::string hidden(hidden_text);

/// What stands between the separators, as many parts as there are.
std::vector<std::string_view> parts_of(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (bool more = true; more;) {
        const auto end = text.find(separator);
        parts.push_back(text.substr(0, end));
        more = end != text.npos;
        text.remove_prefix(more ? end + 1 : text.size());
    }
    return parts;
}

/// A number as it is, and nothing for another text.
std::string number_only(std::string_view text)
{
    const auto number = whole_number(text);
    return number ? std::to_string(*number) : "";
}

std::string masked_members(std::string_view members, MachinePseudonyms& given)
{
    std::string masked;
    for (const std::string_view part : parts_of(members, ',')) {
        const std::string member(trimmed_space(part));
        given.known.add(member);
        if (given.shows(member))
            masked += (masked.empty() ? "" : ",") + given.accounts.of(member);
    }
    return masked;
}

/// In double quotes, of which a shell takes off what is put on here.
std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        result += c;
    }
    return result + "\"";
}

} // namespace

std::string masked_machine_id(const std::string& content, MachinePseudonyms& given)
{
    const std::string_view id = trimmed_space(content);
    given.known.add(id);
    return (is_pseudonym(id) || installation_id(id) ? hidden : "uninitialized") + "\n";
}

std::string masked_accounts(const std::string& content, MachinePseudonyms& given)
{
    std::string masked;
    for (const Account& account : parse_passwd(content)) {
        if (!given.shows(account.name))
            continue;
        given.known.add(account.name);
        given.known.add_person(account.full_name);
        masked += given.accounts.of(account.name) + ":x:" + std::to_string(account.uid) + ":" +
                  std::to_string(account.gid) + ":" + (account.full_name.empty() ? "" : hidden) +
                  "::\n";
    }
    return masked;
}

std::string masked_groups(const std::string& content, MachinePseudonyms& given)
{
    constexpr std::array<std::string_view, 3> administrators{"admin", "sudo", "wheel"};
    std::string masked;
    for (const std::string_view line : lines_of(content)) {
        auto fields = parts_of(line, ':');
        fields.resize(4);
        if (std::ranges::find(administrators, fields[0]) != administrators.end())
            masked += std::string(fields[0]) + ":x:" + number_only(fields[2]) + ":" +
                      masked_members(fields[3], given) + "\n";
    }
    return masked;
}

std::string masked_realm(const std::string& content, MachinePseudonyms& given)
{
    const auto realm = value_in_section(content, "libdefaults", "default_realm");
    given.known.add(realm.value_or(""));
    return realm ? "[libdefaults]\ndefault_realm = " + hidden + "\n" : "";
}

std::string masked_workgroup(const std::string& content, MachinePseudonyms& given)
{
    const auto group = value_in_section(content, "global", "workgroup");
    given.known.add(group.value_or(""));
    return group ? "[global]\nworkgroup = " + hidden + "\n" : "";
}

/// A time that is none stays so: it counts for more than that of a file before.
std::string masked_boot_menu(const std::string& content, MachinePseudonyms&)
{
    const std::string none = "GRUB_TIMEOUT=-1\n";
    const auto seconds = assigned(content, "GRUB_TIMEOUT");
    if (!seconds)
        return assigned(none + content, "GRUB_TIMEOUT") ? "" : none;
    return whole_number(*seconds) ? "GRUB_TIMEOUT=" + *seconds + "\n" : none;
}

std::string masked_locale(const std::string& content, MachinePseudonyms&)
{
    const auto locale = assigned(content, "LANG");
    if (!locale)
        return "";
    const auto id = locale_id(*locale);
    const std::string plain = locale->substr(0, locale->find_first_of(".@"));
    const auto modifier = std::min(locale->find('@'), locale->size());
    for (const std::string& shorter :
         {plain.substr(0, plain.find('_')), plain, plain + locale->substr(modifier)}) {
        if (id && locale_id(shorter) == id)
            return "LANG=" + shorter + "\n";
    }
    return "LANG=" + hidden + "\n";
}

/// The first line of each counts, whatever it holds.
std::string masked_definitions(const std::string& content, MachinePseudonyms&)
{
    std::string masked;
    for (const std::string_view key : {"UID_MIN", "UID_MAX"}) {
        const auto lines = lines_of(content);
        const auto line = std::ranges::find_if(lines, [&](std::string_view each) {
            const auto words = words_of(each);
            return words.size() >= 2 && words[0] == key;
        });
        const std::string number = line == lines.end() ? "" : number_only(words_of(*line)[1]);
        masked += number.empty() ? "" : std::string(key) + " " + number + "\n";
    }
    return masked;
}

std::string masked_release(const std::string& content, MachinePseudonyms&)
{
    std::string masked;
    for (const char* key : {"ID", "NAME", "PRETTY_NAME", "VERSION", "VERSION_ID"}) {
        if (const auto value = assigned(content, key))
            masked += std::string(key) + "=" + quoted(*value) + "\n";
    }
    return masked;
}

} // namespace ostrelum::linux_platform
