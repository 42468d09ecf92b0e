#pragma once

#include "platform/linux/recording/MachinePseudonyms.h"

#include <string>

/// The files by which a system is configured, without what identifies anybody. Each function takes
/// the whole file as the machine has it. Only what the program reads of it is left, in a form of
/// its own: comments and settings for others may hold anything.
namespace ostrelum::linux_platform {

/// machine-id(5); for another text, that the machine has none.
std::string masked_machine_id(const std::string& content, MachinePseudonyms& given);
/// passwd(5): the accounts that are shown.
std::string masked_accounts(const std::string& content, MachinePseudonyms& given);
/// group(5): the groups that administer the machine, and which of the shown accounts are in them.
std::string masked_groups(const std::string& content, MachinePseudonyms& given);
std::string masked_realm(const std::string& content, MachinePseudonyms& given);
std::string masked_workgroup(const std::string& content, MachinePseudonyms& given);
std::string masked_boot_menu(const std::string& content, MachinePseudonyms& given);
/// The language, as short as still tells it.
std::string masked_locale(const std::string& content, MachinePseudonyms& given);
/// login.defs(5): the range of the users' numbers.
std::string masked_definitions(const std::string& content, MachinePseudonyms& given);
/// os-release(5): name and version.
std::string masked_release(const std::string& content, MachinePseudonyms& given);

} // namespace ostrelum::linux_platform
