#pragma once

#include "platform/linux/recording/MachinePseudonyms.h"

#include <string>

/// The content of a machine's files without what identifies anybody. Each function takes the whole
/// file as the machine has it. Of a file that holds more than the program reads, only that is left.
namespace ostrelum::linux_platform {

/// A placeholder stays: it identifies nobody.
std::string hidden_line(const std::string& content, MachinePseudonyms& given);
std::string hidden_serial(const std::string& content, MachinePseudonyms& given);
std::string unchanged(const std::string& content, MachinePseudonyms& given);
std::string first_line(const std::string& content, MachinePseudonyms& given);
std::string hidden_host(const std::string& content, MachinePseudonyms& given);
/// "(none)" stays.
std::string masked_domain(const std::string& content, MachinePseudonyms& given);
std::string masked_mounts(const std::string& content, MachinePseudonyms& given);
/// The line of a process, without the name that its program bears.
std::string masked_process(const std::string& content, MachinePseudonyms& given);
std::string masked_cpuinfo(const std::string& content, MachinePseudonyms& given);
std::string masked_kernel(const std::string& content, MachinePseudonyms& given);
/// What a driver of others tells of its build.
std::string masked_driver(const std::string& content, MachinePseudonyms& given);
/// What was asked of the hardware database: names of makers and models.
std::string masked_names(const std::string& content, MachinePseudonyms& given);
/// The lines of the model, of a mainframe and of a graphics card.
std::string only_model(const std::string& content, MachinePseudonyms& given);
std::string masked_udev(const std::string& content, MachinePseudonyms& given);
std::string masked_name(const std::string& content, MachinePseudonyms& given);
/// A disk's world-wide identity; the model in it stays.
std::string masked_disk_identity(const std::string& content, MachinePseudonyms& given);

} // namespace ostrelum::linux_platform
