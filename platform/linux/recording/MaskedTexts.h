#pragma once

#include "platform/masking/Pseudonyms.h"

#include <string>
#include <vector>

/// The content of a machine's files without what identifies anybody. Each function takes the whole
/// file as the machine has it. Of a file that holds more than the program reads, only that is left.
namespace ostrelum::linux_platform {

/// The pseudonyms that one machine has been given.
struct MachinePseudonyms {
    /// Those of the accounts that are shown.
    Pseudonyms accounts;
    /// The names of these accounts.
    std::vector<std::string> shown;
    /// Those of folders, volumes and devices.
    Pseudonyms names;

    bool shows(const std::string& account) const;
};

/// A placeholder stays: it identifies nobody.
std::string hidden_line(const std::string& content, MachinePseudonyms& given);
std::string hidden_serial(const std::string& content, MachinePseudonyms& given);
std::string unchanged(const std::string& content, MachinePseudonyms& given);
/// machine-id(5); for another text, that the machine has none.
std::string masked_machine_id(const std::string& content, MachinePseudonyms& given);
/// passwd(5): the accounts that are shown.
std::string masked_accounts(const std::string& content, MachinePseudonyms& given);
/// group(5): the groups that administer the machine.
std::string masked_groups(const std::string& content, MachinePseudonyms& given);
std::string masked_realm(const std::string& content, MachinePseudonyms& given);
std::string masked_workgroup(const std::string& content, MachinePseudonyms& given);
/// "(none)" stays.
std::string masked_domain(const std::string& content, MachinePseudonyms& given);
std::string masked_boot_menu(const std::string& content, MachinePseudonyms& given);
std::string masked_mounts(const std::string& content, MachinePseudonyms& given);
/// The line of a process, without the name that its program bears.
std::string masked_process(const std::string& content, MachinePseudonyms& given);
std::string masked_cpuinfo(const std::string& content, MachinePseudonyms& given);
std::string masked_kernel(const std::string& content, MachinePseudonyms& given);
/// The lines of the model, of a mainframe and of a graphics card.
std::string only_model(const std::string& content, MachinePseudonyms& given);
std::string masked_udev(const std::string& content, MachinePseudonyms& given);
std::string masked_name(const std::string& content, MachinePseudonyms& given);
/// A disk's world-wide identity; the model in it stays.
std::string masked_disk_identity(const std::string& content, MachinePseudonyms& given);

} // namespace ostrelum::linux_platform
