#include "figures/Account.h"
#include "figures/Figures.h"
#include "frame/Page.h"
#include "sections/Sections.h"
#include "sections/SystemRows.h"

namespace ostrelum::inline sections {
namespace {

/// The note under the rows says whose account this is.
void show_notice()
{
    place_line(F1.Line1, 11, 7);
    F1.Iaviso.Visible = true;
    F1.Laviso.ForeColor = rgb(75, 75, 75);
    F1.Laviso.Caption = Trad[Text::AccountNotice];
    F1.Laviso.Visible = true;
}

} // namespace

void SecUser()
{
    enter_section(UserPage);
    read_account();

    show_title();
    hide(F1.LNoDrive, F1.Line1);
    plain_title(1);
    plain_title(8);
    set_row(1, Trad[Text::Name], Datos[AccountSlot::Name]);
    set_row(2, Trad[Text::Domain], CapitalText(Datos[AccountSlot::Domain]));
    set_row(3, Trad[Text::AccountType], account_type());
    set_row(4, Trad[Text::PrivilegeLevel], privilege_level());
    set_row(5, Trad[Text::PasswordChangeable], yes_or_no(Datos[AccountSlot::PasswordChangeable]));
    set_row(6, Trad[Text::PasswordExpires], yes_or_no(Datos[AccountSlot::PasswordExpires]));
    set_row(7, Trad[Text::BadPasswords], bad_passwords());
    set_row(8, Trad[Text::LogonTime], logon_time());
    set_row(9, Trad[Text::UsageTime], usage_time);
    set_row(10, Trad[Text::LogonCount], logon_count());
    clear_title_tooltips(3, 5);
    empty_rows(11, 12);
    show_notice();
    F1.Timer1.Enabled = true;
}

} // namespace ostrelum::inline sections
