#pragma once

#include <string>

/// The account under which the program runs. An empty text is unknown.
namespace ostrelum::inline figures {

/// The slots of Datos that read_account fills.
enum class AccountSlot {
    Name = 1,
    Domain,
    Type,               ///< a code
    Privileges,         ///< a code
    PasswordChangeable, ///< a truth value
    PasswordExpires,    ///< a truth value
    BadPasswords,
    LastLogon, ///< a datetime of the service
    LogonCount,
};

/// Finds the account by its name, upper and lower case counting.
void read_account();

/// What the code of the account's type stands for.
std::string account_type();
/// What the code of its privileges stands for.
std::string privilege_level();
/// Whether a slot reads as true, as "Yes" or "No".
std::string yes_or_no(const std::string& slot);
/// The bad passwords entered, from 0 on.
std::string bad_passwords();
/// The time of day of the last logon.
std::string logon_time();
/// The number of logons, from 1 on.
std::string logon_count();

} // namespace ostrelum::inline figures
