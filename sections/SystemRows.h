#pragma once

#include <string>

/// The rows about the running system that are written anew while their page is open.
namespace ostrelum::inline sections {

/// Time since the start of the system, for row 9 of the user's page; empty from 29 days on.
std::string usage_time();

/// Writes row 11 of the system's page from the total Num1 and the part in use Num2, both in MB: the
/// part in use where that says something, else the total. Without a total the title stays.
void set_virtual_memory_row();

} // namespace ostrelum::inline sections
