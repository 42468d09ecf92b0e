#include "platform/linux/classes/Classes.h"
#include "platform/linux/devices/FirmwareStrings.h"
#include "platform/linux/formats/ConfigText.h"
#include "platform/linux/os/KernelRelease.h"
#include "platform/linux/text/Text.h"

#include <vector>

namespace ostrelum::linux_platform {
namespace {

/// The machine itself.
struct Computer {
    const MachineView& machine;

    const Sysroot& root() const { return machine.root; }
    std::string file(const char* path) const { return root().read(path).value_or(""); }
};

Value reset_after_crash(const Computer& computer)
{
    const auto seconds = computer.root().text("/proc/sys/kernel/panic");
    return seconds ? Value(*seconds != "0") : Value();
}

/// The realm that the machine has joined: without a key of its own it has joined none.
std::optional<std::string> realm(const Computer& computer)
{
    if (!computer.root().exists("/etc/krb5.keytab"))
        return std::nullopt;
    return value_in_section(computer.file("/etc/krb5.conf"), "libdefaults", "default_realm");
}

Value domain(const Computer& computer)
{
    if (const auto joined = realm(computer))
        return *joined;
    if (const auto group =
            value_in_section(computer.file("/etc/samba/smb.conf"), "global", "workgroup"))
        return *group;
    const auto name = computer.root().text("/proc/sys/kernel/domainname");
    return name && *name != "(none)" ? *name : "WORKGROUP";
}

Value manufacturer(const Computer& computer)
{
    return value_of(FirmwareStrings(computer.root()).text(FirmwareText::SystemVendor));
}

Value model(const Computer& computer)
{
    return value_of(FirmwareStrings(computer.root()).text(FirmwareText::SystemName));
}

/// What the boot loader's configuration says; the files of the folder come after the main one. Of
/// more text than any has, nobody knows what comes last.
std::optional<std::uint64_t> grub_timeout(const Computer& computer)
{
    constexpr std::size_t longest = std::size_t{4} << 20;
    std::string text = computer.file("/etc/default/grub");
    for (const std::string& name : computer.root().list("/etc/default/grub.d")) {
        if (text.size() > longest)
            return std::nullopt;
        if (name.ends_with(".cfg"))
            text += "\n" + computer.root().read("/etc/default/grub.d/" + name).value_or("");
    }
    const auto seconds = assigned(text, "GRUB_TIMEOUT");
    return seconds ? whole_number(*seconds) : std::nullopt;
}

/// The firmware's variable of the other loader (systemd Boot Loader Interface): 4 bytes of
/// attributes, then digits in UTF-16.
std::optional<std::uint64_t> loader_timeout(const Computer& computer)
{
    const std::string variable =
        computer.file("/sys/firmware/efi/efivars/"
                      "LoaderConfigTimeout-4a67b082-0a4c-41cf-b6c7-440b29bb8c4f");
    std::string digits;
    for (std::size_t at = 4; at + 1 < variable.size() && variable[at] != '\0'; at += 2)
        digits += variable[at + 1] == '\0' ? variable[at] : '?';
    return whole_number(digits);
}

Value startup_delay(const Computer& computer)
{
    auto seconds = grub_timeout(computer);
    if (!seconds)
        seconds = loader_timeout(computer);
    return seconds && *seconds <= UINT16_MAX ? Value(*seconds) : Value();
}

Value system_type(const Computer& computer)
{
    const auto kind = kernel_architecture(computer.machine);
    if (!kind)
        return {};
    if (*kind == "x86_64")
        return "x64-based PC";
    if (kind->size() == 4 && kind->starts_with('i') && kind->ends_with("86"))
        return "X86-based PC";
    if (*kind == "aarch64")
        return "ARM64-based PC";
    return *kind + "-based PC";
}

constexpr PropertyRow<Computer> rows[] = {
    {"AutomaticResetBootOption", reset_after_crash},
    {"Domain", domain},
    {"Manufacturer", manufacturer},
    {"Model", model},
    {"SystemStartupDelay", startup_delay},
    {"SystemType", system_type},
};

/// One, wherever there is a kernel.
std::vector<Computer> computers(const MachineView& machine)
{
    if (machine.root.exists("/proc/sys/kernel") ||
        FirmwareStrings(machine.root).has(FirmwareText::SystemVendor))
        return {{machine}};
    return {};
}

} // namespace

constinit const LinuxClass Win32_ComputerSystem =
    linux_class<rows, computers>("Win32_ComputerSystem");

} // namespace ostrelum::linux_platform
