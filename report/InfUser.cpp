#include "figures/Account.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"
#include "sources/Texts.h"

namespace ostrelum::inline report {

void InfUser()
{
    read_account();

    write_rows({
        {Trad[Text::Name], known(Datos[AccountSlot::Name])},
        {Trad[Text::Domain], known(CapitalText(Datos[AccountSlot::Domain]))},
        {Trad[Text::AccountType], known(account_type())},
        {Trad[Text::PrivilegeLevel], known(privilege_level())},
        {Trad[Text::PasswordChangeable], known(yes_or_no(Datos[AccountSlot::PasswordChangeable]))},
        {Trad[Text::PasswordExpires], known(yes_or_no(Datos[AccountSlot::PasswordExpires]))},
        {Trad[Text::BadPasswords], known(bad_passwords())},
        {Trad[Text::LogonTime], known(logon_time())},
        {Trad[Text::LogonCount], known(logon_count())},
    });
}

} // namespace ostrelum::inline report
