#include "figures/Account.h"
#include "figures/Shared.h"
#include "report/Body.h"
#include "report/Stages.h"
#include "sources/Texts.h"

namespace ostrelum {

void InfUser()
{
    read_account();

    write_rows({
        {Trad[36], known(Datos[1])},
        {Trad[37], known(CapitalText(Datos[2]))},
        {Trad[38], known(account_type())},
        {Trad[44], known(privilege_level())},
        {Trad[48], known(yes_or_no(Datos[5]))},
        {Trad[51], known(yes_or_no(Datos[6]))},
        {Trad[52], known(bad_passwords())},
        {Trad[53], known(logon_time())},
        {Trad[56], known(logon_count())},
    });
}

} // namespace ostrelum
