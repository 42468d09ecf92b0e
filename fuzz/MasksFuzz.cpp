#include "fuzz/Target.h"
#include "platform/linux/formats/Mounts.h"
#include "platform/linux/recording/MaskedRecording.h"

using namespace ostrelum;
using namespace ostrelum::linux_platform;

namespace {

constexpr std::string_view planted = "zq7planted";

/// Files in which nothing but what the program knows by its form is kept.
constexpr const char* places[] = {"/etc/passwd",
                                  "/etc/group",
                                  "/etc/machine-id",
                                  "/etc/krb5.conf",
                                  "/etc/samba/smb.conf",
                                  "/proc/sys/kernel/hostname",
                                  "/proc/sys/kernel/domainname",
                                  "/sys/class/dmi/id/product_serial",
                                  "/sys/block/dm-0/dm/name",
                                  "/proc/self/mountinfo"};

/// The name of a type and the number of a device are the kernel's own.
bool kernel_says_it(const std::string& mounts)
{
    return std::ranges::any_of(parse_mounts(mounts), [](const Mount& mount) {
        return (mount.type + " " + mount.device).find(planted) != std::string::npos;
    });
}

} // namespace

/// Any bytes as each of the files that name people and machines: the one name that seeds have there
/// is not in the masked recording, whatever stands around it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    Recording machine;
    for (const std::string place : places)
        add_file(machine, place, text);
    add_file(machine, "/run/faillock/" + std::string(planted), text);
    const std::string name(planted);
    machine.answers = {{"env", {{"UserName=" + name, ""}, {"LANG=es_ES.UTF-8", ""}}},
                       {"statvfs", {{"/home/" + name, "1 2 3 4"}}},
                       {"passwd", {{name + ":x:1000:1000::/home/" + name + ":/bin/sh", ""}}},
                       {"uname", {{"Linux " + name + " 6.1.0 x86_64 GNU/Linux", ""}}},
                       {"btime", {{"/", "5"}}},
                       {"zone", {{"5", "60"}}}};
    if (kernel_says_it(text))
        machine.places.erase("/proc/self/mountinfo");
    Pseudonyms given;
    const auto known = identities_in(machine, {std::string(planted)});
    require(known.hidden_in(planted, Writer::Person, given) == hidden_text);
    const Recording masked = masked_recording(machine, {std::string(planted)});
    for (const auto& [list, answers] : masked.answers) {
        for (const auto& [key, value] : answers)
            require(key.find(planted) == std::string::npos);
    }
    require(masked.answers.size() == machine.answers.size());
    for (const auto& [path, place] : masked.places)
        require((path + place.content).find(planted) == std::string::npos);
    return 0;
}
