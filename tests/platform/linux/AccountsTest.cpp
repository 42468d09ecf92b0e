#include "platform/linux/Accounts.h"
#include "platform/linux/AccountsService.h"
#include "platform/linux/LoginRecords.h"
#include "tests/platform/linux/MadeMachine.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using Bytes8 = std::vector<std::uint8_t>;

/// A record of the log of logins.
Bytes8 login(std::size_t size, std::uint8_t type, std::string_view user, std::uint32_t seconds)
{
    Bytes8 record(size, 0);
    record[0] = type;
    std::copy(user.begin(), user.end(), record.begin() + 44);
    for (std::size_t i = 0; i < 4; ++i)
        record[(size == WideUtmpBytes ? 344 : 340) + i] =
            static_cast<std::uint8_t>(seconds >> (8 * i));
    return record;
}

TEST(Logins, AreCountedByAccountInBothWidths)
{
    const std::string long_name(32, 'n');
    for (const std::size_t size : {UtmpBytes, WideUtmpBytes}) {
        Bytes8 log;
        for (const auto& record :
             {login(size, 7, "ana", 100), login(size, 8, "ana", 150), login(size, 7, "anabel", 160),
              login(size, 7, "ana", 200), login(size, 7, long_name, 300)})
            log.insert(log.end(), record.begin(), record.end());
        EXPECT_EQ(login_history(log, size, "ana").logins, 2U);
        EXPECT_EQ(login_history(log, size, "ana").last, 200);
        EXPECT_EQ(login_history(log, size, long_name).last, 300) << "a name that fills its field";
        EXPECT_EQ(login_history(log, size, "eva").last, std::nullopt);
        log.pop_back();
        EXPECT_EQ(login_history(log, size, long_name).logins, 0U) << "a record that is cut off";
    }
}

TEST(Logins, TellTheirWidthThemselves)
{
    for (const std::size_t size : {UtmpBytes, WideUtmpBytes}) {
        const std::size_t other = size == UtmpBytes ? WideUtmpBytes : UtmpBytes;
        Bytes8 log;
        // 9600 bytes are whole records of both widths.
        while (log.size() < 9600) {
            const Bytes8 record = login(size, log.empty() ? 2 : 7, "ana", 1700000000);
            log.insert(log.end(), record.begin(), record.end());
        }
        EXPECT_EQ(utmp_bytes(log, other), size);
        EXPECT_EQ(utmp_bytes(std::span(log).first(size - 1), other), other) << "cut";
    }
    EXPECT_EQ(utmp_bytes(Bytes8(4800, 0xFF), WideUtmpBytes), WideUtmpBytes);
}

/// Reading by user number, and what a name may do to a path, need the files themselves.
TEST(Logins, ComeFromTheFilesOfTheAccount)
{
    const MadeMachine machine;
    machine.file("etc/passwd", "root:x:0:0::/:\nana:x:1000:5::/:\n../ana:x:1001:5::/:\n");
    const std::string log(1000 * 292, '\0');
    machine.file("var/log/lastlog",
                 log + std::string("\x80\x51\x01", 3) + std::string(289 + 200, '\0'));
    machine.file("run/faillock/ana", std::string(54, '\0') + '\1' + std::string(9, '\0'));
    machine.file("run/ana", std::string(64, '\1'));
    const std::string query =
        "Select BadPasswordCount, LastLogon, NumberOfLogons from Win32_NetworkLoginProfile";
    EXPECT_THAT(machine.rows(query),
                testing::ElementsAre("null|null|root|null", "1|19700102000000.000000+000|ana|null",
                                     "null|null|../ana|null"));
}

TEST(Logins, OlderFilesGiveTheLastOneAndFailures)
{
    for (const std::size_t size : {lastlog_bytes(UtmpBytes), lastlog_bytes(WideUtmpBytes)}) {
        Bytes8 record(size, 0);
        EXPECT_EQ(last_login(record), std::nullopt) << "never";
        record[0] = 77;
        EXPECT_EQ(last_login(record), 77);
        EXPECT_EQ(last_login(std::span(record).first(size - 1)), std::nullopt) << "cut";
    }
    Bytes8 failures(3 * 64 + 10, 0);
    failures[54] = 1;
    failures[64 + 54] = 2;
    failures[128 + 54] = 3;
    EXPECT_EQ(failed_logins(failures), 2U);
}

TEST(Accounts, ReadTheLinesThatAreWhole)
{
    const auto accounts =
        parse_passwd("root:x:0:0:root:/root:/bin/sh\nbroken\nx:x:no:1::/:\n:x:5:5::/:\n"
                     "ana:x:1000:1000:Ana Nogal,room 3,,:/home/ana:/bin/bash\neva:x:1001:100");
    ASSERT_EQ(accounts.size(), 3U);
    EXPECT_EQ(accounts[1].full_name, "Ana Nogal");
    EXPECT_EQ(accounts[2].gid, 100U);
}

TEST(Accounts, AdministerByMembershipOrPrimaryGroup)
{
    const std::string groups =
        "sudo:x:27:ana, eva\nwheel:x:10:\nusers:x:100:joe\nsudoers:x:28:joe\n";
    for (const Account& account :
         {Account{"ana", 1000, 1000, ""}, {"eva", 1001, 1001, ""}, {"kim", 1004, 10, ""}})
        EXPECT_TRUE(administers(groups, account)) << account.name;
    for (const Account& account : {Account{"an", 1002, 1002, ""}, {"joe", 1003, 100, ""}})
        EXPECT_FALSE(administers(groups, account)) << account.name;
}

TEST(PasswordPolicies, FollowTheAges)
{
    const struct {
        std::int64_t changed, shortest, longest;
        bool expires, changeable;
    } cases[] = {{19000, 0, 99999, false, true}, {19000, 0, -1, false, true},
                 {19000, 0, 90, true, true},     {19995, 7, 90, true, false},
                 {19993, 7, 99999, false, true}, {-1, 7, 90, true, true}};
    for (const auto& c : cases) {
        const PasswordPolicy policy = policy_of_ages(c.changed, c.shortest, c.longest, 20000);
        EXPECT_EQ(policy.expires, c.expires) << c.longest;
        EXPECT_EQ(policy.changeable, c.changeable) << c.changed << " " << c.shortest;
    }
}

} // namespace
} // namespace ostrelum
