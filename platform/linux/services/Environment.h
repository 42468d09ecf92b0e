#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// Environment variables by name.
using Environment = std::map<std::string, std::string, std::less<>>;

/// The variables that this process was started with.
Environment process_environment();

/// The variable of exactly that name; empty if it is not set.
std::string variable(const Environment& environment, std::string_view name);

/// The same in any case of its ASCII letters, if none of exactly that name holds something.
std::string variable_in_any_case(const Environment& environment, std::string_view name);

/// HOME, else the folder that the password file names for the user of this process. Empty if there
/// is neither.
std::string home_folder(const Environment& environment);

/// The folder that an XDG variable names, else `fallback` under the home folder (XDG Base Directory
/// Specification: a path that is not absolute counts as none). Empty if there is no home either.
std::string base_folder(const Environment& environment, std::string_view name,
                        std::string_view fallback);

/// The login name of the user of this process: what UserName, USER or LOGNAME holds in any case of
/// its letters, if it names that account, else the password file's. Empty if none has it.
std::string login_name(const Environment& environment);

} // namespace ostrelum::linux_platform
