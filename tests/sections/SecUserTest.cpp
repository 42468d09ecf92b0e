#include "tests/Stage.h"
#include "tests/sections/PageRows.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* Accounts =
    "Select Domain, AccountType, PasswordChangeable, PasswordExpires from Win32_UserAccount";
constexpr const char* Logons = "Select Caption, Privileges, BadPasswordCount, LastLogon, "
                               "NumberOfLogons from Win32_NetworkLoginProfile";

class SecUserPage : public Stage {
protected:
    SecUserPage()
    {
        machine.environment["UserName"] = "  ana ";
        clock.milliseconds = 3723000;
        start_program();
    }

    static Instance account(const Value& name, const Value& type, const Value& changeable = true,
                            const Value& expires = false)
    {
        return Instance({{"AccountType", type},
                         {"Domain", "HOME-PC"},
                         {"Name", name},
                         {"PasswordChangeable", changeable},
                         {"PasswordExpires", expires}});
    }
    static Instance logons(const Value& name, const Value& privileges, const Value& bad,
                           const Value& count, const Value& last = "20120315140509.000000-180")
    {
        return Instance({{"BadPasswordCount", bad},
                         {"Caption", name},
                         {"LastLogon", last},
                         {"NumberOfLogons", count},
                         {"Privileges", privileges}});
    }
    void open(const ResultSet& accounts, const ResultSet& profiles)
    {
        script.results = {{Accounts, accounts}, {Logons, profiles}};
        press("LMenu", 2);
    }
};

TEST_F(SecUserPage, FindsTheUsersOwnAccount)
{
    leave_another_page();
    F1.LNoDrive.Visible = true;
    open({account("Ana", 256), account(" ana ", 512), account("ana", 256)},
         {logons("other", 0, 9, 9), logons("ana", 2, 0, 12)});
    EXPECT_EQ(F1.Titulo.Caption, "User account");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Name: ana", "Domain: Home-pc", "Account type: Normal",
                            "Level of privilege: Administrator", "Password changeable: Yes",
                            "Password expired: No", "Number of bad passwords entered: 0",
                            "Start time: 14:05:09 hs.", "Usage time: 01:02:03 hs.",
                            "Logon's number: 12 time/s.", "", ""));
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_FALSE(F1.LT(1).Font.Italic || F1.LT(8).Font.Italic || F1.LNoDrive.Visible);
    EXPECT_TRUE(F1.Timer1.Enabled);
}

TEST_F(SecUserPage, AlwaysSaysWhoseAccountItIs)
{
    F1.Laviso.ForeColor = RGB(255, 0, 0);
    open({}, {});
    EXPECT_TRUE(F1.Line1.Visible && F1.Iaviso.Visible && F1.Laviso.Visible);
    EXPECT_EQ(F1.Line1.Y1, F1.LT(11).Top + 7);
    EXPECT_EQ(F1.Line1.Y2, F1.LT(11).Top + 7);
    EXPECT_EQ(F1.Laviso.ForeColor, RGB(75, 75, 75));
    EXPECT_EQ(F1.Laviso.Caption, "The information obtained in this section belong to the user "
                                 "account that executed Ostrelum.");
}

TEST_F(SecUserPage, WithoutTheAccountOnlyNameAndUsageTimeAreKnown)
{
    open({account("ANA", 512)}, {logons("Ana", 2, 0, 12)});
    EXPECT_EQ(F1.L(1).Caption, "ana");
    for (const int row : {2, 3, 4, 5, 6, 7, 8, 10})
        EXPECT_EQ(F1.L(row).Caption, "Unknown") << row;
    clock.milliseconds = 29U * 24 * 60 * 60 * 1000;
    open({}, {});
    EXPECT_EQ(F1.L(9).Caption, "Unknown");
}

TEST_F(SecUserPage, TellsCodesAndCounts)
{
    const struct {
        Value type, privileges, bad, count, last;
        const char *type_text, *privilege_text, *bad_text, *count_text, *last_text;
    } cases[] = {
        {256, 0, 3, 1, "20120315000000", "Temp duplicate", "Guest", "3", "1 time/s.",
         "00:00:00 hs."},
        {"2048", 1, "7", 0, "********", "Internal domain", "Limited", "7", "Unknown", "Unknown"},
        {4096, 3, -1, "many", "", "Workstation", "Unknown", "Unknown", "Unknown", "Unknown"},
        {8192, "two", {}, {}, {}, "Server", "Unknown", "Unknown", "Unknown", "Unknown"},
        {513,
         {},
         "x",
         -3,
         "20120315246060",
         "Unknown",
         "Unknown",
         "Unknown",
         "Unknown",
         "Unknown"}};
    for (const auto& c : cases) {
        open({account("ana", c.type)}, {logons("ana", c.privileges, c.bad, c.count, c.last)});
        EXPECT_THAT(
            (std::vector{F1.L(3).Caption, F1.L(4).Caption, F1.L(7).Caption, F1.L(8).Caption,
                         F1.L(10).Caption}),
            ElementsAre(c.type_text, c.privilege_text, c.bad_text, c.last_text, c.count_text));
    }
}

TEST_F(SecUserPage, ReadsTruthAsTheServiceWritesIt)
{
    const struct {
        Value changeable, expires;
        const char *changeable_text, *expires_text;
    } cases[] = {{"TRUE", "False", "Yes", "No"},
                 {0, -1, "No", "Yes"},
                 {{}, "perhaps", "Unknown", "Unknown"}};
    for (const auto& c : cases) {
        open({account("ana", 512, c.changeable, c.expires)}, {});
        EXPECT_EQ(F1.L(5).Caption, c.changeable_text);
        EXPECT_EQ(F1.L(6).Caption, c.expires_text);
    }
}

} // namespace
} // namespace ostrelum
