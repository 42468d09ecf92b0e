#include "fuzz/Target.h"
#include "platform/linux/LinuxManagementService.h"
#include "platform/linux/formats/ConfigText.h"
#include "platform/linux/recording/MaskedRecording.h"
#include "platform/linux/text/Text.h"
#include "platform/masking/Pseudonyms.h"

using namespace ostrelum;
using namespace ostrelum::linux_platform;

namespace {

constexpr const char* classes[] = {"Win32_OperatingSystem", "Win32_ComputerSystem",
                                   "Win32_UserAccount"};

/// What a mask leaves of that file.
std::string masked(const std::string& path, const std::string& text)
{
    Recording machine;
    add_file(machine, path, text);
    return content_at(masked_recording(machine, {}), path);
}

/// Where there was a value there is now a hidden one, and nowhere else.
void check_hidden(const std::string& text, const std::string& path, const char* section,
                  const char* key)
{
    const auto before = value_in_section(text, section, key);
    const auto after = value_in_section(masked(path, text), section, key);
    require(before ? after && is_pseudonym(*after) : !after);
}

} // namespace

/// Any bytes as the texts by which a system is configured: what the service tells of them is clean,
/// and masks leave the wait of the boot menu, and no name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const OneFileMachine machine{
        "etc/os-release", "etc/default/grub", "etc/default/locale", "etc/locale.conf",
        "etc/krb5.conf",  "etc/login.defs",   "etc/samba/smb.conf", "etc/debian_version"};
    const std::string text(data, data + size);
    machine.write(text);
    const auto service = make_linux_management_service(machine.root(), {});
    for (const std::string name : classes) {
        for (const Instance& object : service->ExecQuery("Select * from " + name))
            for (const auto& [property, value] : object.properties())
                require(!value.is_text() || is_clean_line(value.text()));
    }
    check_hidden(text, "/etc/krb5.conf", "libdefaults", "default_realm");
    check_hidden(text, "/etc/samba/smb.conf", "global", "workgroup");
    const auto wait = [](const std::string& menu) {
        return whole_number(assigned(menu, "GRUB_TIMEOUT").value_or(""));
    };
    require(!wait(text) || wait(masked("/etc/default/grub", text)) == wait(text));
    return 0;
}
