#include "figures/Account.h"

#include "figures/Figures.h"
#include "figures/Numbers.h"
#include "figures/PassOver.h"
#include "figures/Slots.h"
#include "sources/CodeTable.h"

namespace ostrelum::inline figures {
namespace {

using Slot = AccountSlot;

/// A code and the key of its text.
using Row = CodeRow<Text>;

/// DMTF CIM schema as the service extends it, Win32_UserAccount.AccountType.
constexpr auto account_types = std::to_array<Row>({
    {256, Text::TemporaryDuplicate},
    {512, Text::NormalAccount},
    {2048, Text::InternalDomain},
    {4096, Text::Workstation},
    {8192, Text::Server},
});
static_assert(rising(account_types));

/// DMTF CIM schema as the service extends it, Win32_NetworkLoginProfile.Privileges.
constexpr auto privileges = std::to_array<Row>({
    {0, Text::Guest},
    {1, Text::Limited},
    {2, Text::Administrator},
});
static_assert(rising(privileges));

template <std::size_t Count>
std::string word_of(const std::array<Row, Count>& rows, const std::string& code)
{
    const Row* row = find_code(rows, code);
    return row ? Trad[row->text] : "";
}

bool names_the_account(const Instance& item, const char* property)
{
    return holds([&] { return trimmed(item[property]) == Datos[Slot::Name]; });
}

bool read_rights(const Instance& item)
{
    if (!names_the_account(item, "Name"))
        return false;
    attempt([&] { Datos[Slot::Domain] = trimmed(item["Domain"]); });
    attempt([&] { Datos[Slot::Type] = trimmed(item["AccountType"]); });
    attempt([&] { Datos[Slot::PasswordChangeable] = trimmed(item["PasswordChangeable"]); });
    attempt([&] { Datos[Slot::PasswordExpires] = trimmed(item["PasswordExpires"]); });
    return true;
}

bool read_logons(const Instance& item)
{
    if (!names_the_account(item, "Caption"))
        return false;
    attempt([&] { Datos[Slot::Privileges] = trimmed(item["Privileges"]); });
    attempt([&] { Datos[Slot::BadPasswords] = trimmed(item["BadPasswordCount"]); });
    attempt([&] { Datos[Slot::LastLogon] = trimmed(item["LastLogon"]); });
    attempt([&] { Datos[Slot::LogonCount] = trimmed(item["NumberOfLogons"]); });
    return true;
}

} // namespace

void read_account()
{
    clear(Datos, Slot::Name, Slot::LogonCount);
    attempt([] { Datos[Slot::Name] = trimmed(platform.system_api->Environ("UserName")); });
    query("Select Domain, AccountType, PasswordChangeable, PasswordExpires from "
          "Win32_UserAccount");
    first_match(WmiResult, read_rights);
    query("Select Caption, Privileges, BadPasswordCount, LastLogon, NumberOfLogons from "
          "Win32_NetworkLoginProfile");
    first_match(WmiResult, read_logons);
}

std::string account_type()
{
    return word_of(account_types, Datos[Slot::Type]);
}

std::string privilege_level()
{
    return word_of(privileges, Datos[Slot::Privileges]);
}

std::string yes_or_no(const std::string& slot)
{
    std::string word;
    attempt([&] { word = Trad[Value(slot).as_bool() ? Text::Yes : Text::No]; });
    return word;
}

std::string bad_passwords()
{
    return at_least(Datos[Slot::BadPasswords], 0) ? Datos[Slot::BadPasswords] : "";
}

std::string logon_time()
{
    std::string time;
    attempt([&] {
        time = FillMark(Trad[Text::ClockTime], "(HHMMSS)", WmiTimeText(Datos[Slot::LastLogon]));
    });
    return time;
}

std::string logon_count()
{
    return at_least(Datos[Slot::LogonCount], 1)
               ? FillMark(Trad[Text::Times], "(#)", Datos[Slot::LogonCount])
               : "";
}

} // namespace ostrelum::inline figures
