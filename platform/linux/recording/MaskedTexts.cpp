#include "platform/linux/recording/MaskedTexts.h"

#include "platform/linux/devices/Volumes.h"
#include "platform/linux/formats/Mounts.h"
#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/formats/UdevRecord.h"
#include "platform/linux/formats/VolumeSerial.h"
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

/// A table of mounts writes blanks and line ends in octal digits (fstab(5)).
std::string escaped(const std::string& text)
{
    constexpr std::string_view escaped_signs = " \t\n\\";
    std::string result;
    for (const char c : text) {
        if (escaped_signs.find(c) == escaped_signs.npos)
            result += c;
        else
            result += {'\\', static_cast<char>('0' + c / 64), static_cast<char>('0' + c / 8 % 8),
                       static_cast<char>('0' + c % 8)};
    }
    return result;
}

void note_serial(std::string_view text, MachinePseudonyms& given)
{
    given.known.add(meaningful_serial(text).value_or(""));
}

/// The names in a volume's path or in the source of its mount, as in "//server/share".
void note_names(std::string_view path, MachinePseudonyms& given)
{
    while (!path.empty()) {
        const std::string_view name = path.substr(0, path.find_first_of("/:@"));
        given.known.add(name);
        path.remove_prefix(std::min(name.size() + 1, path.size()));
    }
}

/// Who built a program, and on which machine: "(user@machine)".
void note_builder(const std::string& content, MachinePseudonyms& given)
{
    const auto at = content.find('@');
    if (at == content.npos)
        return;
    const auto begin = content.find_last_of(" (", at) + 1;
    given.known.add(content.substr(begin, at - begin));
    given.known.add(content.substr(at, content.find_first_of(" )", at) - at));
}

/// A source that is no device often has the name of the type.
std::string masked_source(const Mount& mount, MachinePseudonyms& given)
{
    const bool says_nothing = mount.source == mount.type || mount.source == "composefs";
    return escaped(says_nothing ? mount.source : given.names.of_path(mount.source));
}

/// What udev's keys end in that tell a device, a volume or a module from others of its kind.
bool is_identity(std::string_view key)
{
    constexpr std::array<std::string_view, 15> ends{"ID_FS_LABEL",        "ID_FS_LABEL_ENC",
                                                    "ID_FS_UUID",         "ID_FS_UUID_SUB",
                                                    "ID_PART_ENTRY_NAME", "ID_PART_ENTRY_UUID",
                                                    "ID_PART_TABLE_UUID", "ID_SCSI_SERIAL",
                                                    "ID_SERIAL_SHORT",    "ID_WWN",
                                                    "_ASSET_TAG",         "DM_NAME",
                                                    "DM_VG_NAME",         "DM_LV_NAME",
                                                    "_SERIAL_NUMBER"};
    return std::ranges::any_of(ends, [&](auto end) { return key.ends_with(end); });
}

/// What a file system has for an identity; a disc's is a date, of which no serial number is made.
std::string masked_identity(std::string_view identity)
{
    return is_pseudonym(identity) || serial_of_identity(identity, "") ? hidden : "-";
}

} // namespace

std::string hidden_line(const std::string& content, MachinePseudonyms& given)
{
    const auto text = meaningful_text(content);
    given.known.add(text.value_or(""));
    return text ? hidden + "\n" : content;
}

std::string hidden_serial(const std::string& content, MachinePseudonyms& given)
{
    note_serial(content, given);
    return meaningful_serial(content) ? hidden + "\n" : content;
}

/// The name of a machine in a network goes on with that of the network.
std::string hidden_host(const std::string& content, MachinePseudonyms& given)
{
    const auto dot = std::min(content.find('.'), content.size());
    given.known.add(content.substr(0, dot));
    given.known.add(content.substr(dot));
    return hidden_line(content, given);
}

std::string unchanged(const std::string& content, MachinePseudonyms&)
{
    return content;
}

std::string first_line(const std::string& content, MachinePseudonyms&)
{
    return content.substr(0, content.find('\n')) + "\n";
}

std::string masked_domain(const std::string& content, MachinePseudonyms& given)
{
    return trimmed_space(content) == "(none)" ? content : hidden_line(content, given);
}

std::string masked_mounts(const std::string& content, MachinePseudonyms& given)
{
    std::string masked;
    const std::vector<Mount> mounts = parse_mounts(content);
    for (const Volume& volume : volumes_of(mounts)) {
        // Volumes are shown in the order of their folders: so are the numbers in their pseudonyms.
        given.names.of_path(volume.mount.target);
        for (const std::string* path :
             {&volume.mount.target, &volume.mount.root, &volume.mount.source})
            note_names(*path, given);
    }
    for (const Mount& mount : mounts) {
        const std::string target = escaped(given.names.of_path(mount.target));
        const std::string source = masked_source(mount, given);
        if (mount.id == 0)
            masked += source + " " + target + " " + escaped(mount.type) + " rw 0 0\n";
        else
            masked += std::to_string(mount.id) + " " + std::to_string(mount.parent) + " " +
                      (mount.device.empty() ? "0:0" : mount.device) + " " +
                      escaped(given.names.of_path(mount.root)) + " " + target + " rw - " +
                      escaped(mount.type) + " " + source + " rw\n";
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
std::string masked_kernel(const std::string& content, MachinePseudonyms& given)
{
    note_builder(content, given);
    const auto build = content.find(" #");
    return build == content.npos ? "" : hidden + content.substr(build);
}

/// In brackets stand who built the driver and where.
std::string masked_driver(const std::string& content, MachinePseudonyms& given)
{
    note_builder(content, given);
    std::string masked = content;
    for (auto at = masked.find('@'); at != masked.npos; at = masked.find('@', at)) {
        const auto begin = masked.find_last_of(" \t\n", at) + 1;
        const auto end = std::min(masked.find_first_of(" \t\n", at), masked.size());
        masked.replace(begin, end - begin, hidden);
        at = begin + hidden.size();
    }
    return masked;
}

std::string masked_names(const std::string& content, MachinePseudonyms&)
{
    std::string masked;
    for (const std::string_view line : lines_of(content)) {
        const std::string_view key = line.substr(0, line.find('='));
        if (key.ends_with(" ID_VENDOR_FROM_DATABASE") || key.ends_with(" ID_MODEL_FROM_DATABASE"))
            masked.append(line).append("\n");
    }
    return masked;
}

std::string only_model(const std::string& content, MachinePseudonyms&)
{
    constexpr std::array<std::string_view, 3> labels{"Manufacturer:", "Model:", "Model "};
    return lines_with(content, labels);
}

std::string masked_udev(const std::string& content, MachinePseudonyms& given)
{
    constexpr std::array<std::string_view, 9> keys{
        "E:ID_CDROM", "E:ID_FS_TYPE=", "E:ID_FS_VERSION=", "E:ID_INPUT",      "E:ID_MODEL",
        "E:ID_NAME=", "E:ID_VENDOR",   "E:MEMORY_ARRAY_",  "E:MEMORY_DEVICE_"};
    std::string masked;
    for (const std::string_view line : lines_of(content)) {
        const std::string_view key = line.substr(0, line.find('='));
        if (is_identity(key))
            note_serial(udev_decoded(line.substr(std::min(key.size() + 1, line.size()))), given);
        else if (std::ranges::any_of(keys, [&](auto each) { return line.starts_with(each); }))
            masked.append(line).append("\n");
    }
    const UdevRecord record(content);
    if (record.text("ID_FS_LABEL_ENC"))
        masked += "E:ID_FS_LABEL_ENC=" + hidden + "\n";
    if (const auto identity = record.text("ID_FS_UUID"))
        masked += "E:ID_FS_UUID=" + masked_identity(*identity) + "\n";
    return masked;
}

std::string masked_name(const std::string& content, MachinePseudonyms& given)
{
    const std::string name(trimmed_space(content));
    given.known.add(name);
    return given.names.of(name) + "\n";
}

std::string masked_disk_identity(const std::string& content, MachinePseudonyms& given)
{
    constexpr std::string_view kind = "t10.ATA";
    constexpr std::size_t model_width = 40;
    const auto model = content.find_first_not_of(" \t", kind.size());
    const bool tells_model =
        content.starts_with(kind) && model != content.npos && content.size() > model + model_width;
    const std::string shown = tells_model ? content.substr(0, model + model_width) : "";
    // "naa." and its like tell who gave out the number.
    const auto scheme = tells_model ? content.npos : content.find('.');
    note_serial(content.substr(scheme == content.npos ? shown.size() : scheme + 1), given);
    return shown + masked_name(content, given);
}

} // namespace ostrelum::linux_platform
