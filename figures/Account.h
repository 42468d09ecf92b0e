#pragma once

#include <string>

/// The account under which the program runs. An empty text is unknown.
namespace ostrelum::inline figures {

/// Finds the account by its name, upper and lower case counting. Datos 1 is the name, 2 the domain,
/// 3 and 4 the codes of the account's type and of its rights, 5 and 6 whether the password may be
/// changed and whether it expires, 7 the bad passwords entered, 8 the last logon as the service
/// delivers it, 9 the number of logons.
void read_account();

/// What the code in Datos 3 stands for.
std::string account_type();
/// What the code in Datos 4 stands for.
std::string privilege_level();
/// Whether a slot reads as true, as "Yes" or "No".
std::string yes_or_no(const std::string& slot);
/// Datos 7, from 0 on.
std::string bad_passwords();
/// The time of day in Datos 8.
std::string logon_time();
/// Datos 9, from 1 on.
std::string logon_count();

} // namespace ostrelum::inline figures
