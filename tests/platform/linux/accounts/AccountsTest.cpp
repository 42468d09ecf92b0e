#include "platform/linux/accounts/Accounts.h"
#include "platform/linux/accounts/AccountsService.h"
#include "platform/linux/formats/LoginRecords.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

/// A record of the log of logins.
Bytes login(std::size_t size, std::uint8_t type, std::string_view user, std::uint64_t seconds)
{
    Bytes record(size, 0);
    record[0] = type;
    std::ranges::copy(user, record.begin() + 44);
    const std::size_t at = size == wide_utmp_bytes ? 344 : 340;
    record[at] = static_cast<std::uint8_t>(seconds);
    record[at + 1] = static_cast<std::uint8_t>(seconds >> 8);
    return record;
}

TEST(Logins, AreCountedByAccountInBothWidths)
{
    const std::string long_name(32, 'n');
    for (const std::size_t size : {usual_utmp_bytes, wide_utmp_bytes}) {
        Bytes log = login(size, 2, "reboot", 1);
        // 9600 bytes are whole records of both widths, whose kinds alone tell which they are.
        while (log.size() < 9600)
            std::ranges::copy(login(size, log.size() > 8000 ? 8 : 7, "ana", log.size()),
                              std::back_inserter(log));
        const std::size_t other = size == usual_utmp_bytes ? wide_utmp_bytes : usual_utmp_bytes;
        EXPECT_EQ(utmp_bytes(log, other), size);
        EXPECT_EQ(utmp_bytes(std::span(log).first(size - 1), other), other) << "cut";
        std::ranges::copy(login(size, 7, long_name, 300), std::back_inserter(log));
        const auto last = static_cast<std::int64_t>((8000 / size) * size);
        const auto histories = login_histories(log, size);
        EXPECT_EQ(histories.at("ana").logins, 8000 / size) << "and not their ends";
        EXPECT_EQ(histories.at("ana").last, last);
        EXPECT_EQ(histories.at(long_name).last, 300) << "a name that fills its field";
        EXPECT_EQ(histories.size(), 2U);
        log.pop_back();
        EXPECT_FALSE(login_histories(log, size).contains(long_name)) << "a record that is cut off";
    }
    EXPECT_EQ(utmp_bytes(Bytes(4800, 0xFF), wide_utmp_bytes), wide_utmp_bytes);
}

TEST(Logins, OlderFilesGiveTheLastOneAndFailures)
{
    for (const std::size_t size :
         {lastlog_bytes(usual_utmp_bytes), lastlog_bytes(wide_utmp_bytes)}) {
        Bytes record(size, 0);
        EXPECT_EQ(last_login(record), std::nullopt) << "never";
        record[0] = 77;
        EXPECT_EQ(last_login(record), 77);
        EXPECT_EQ(last_login(std::span(record).first(size - 1)), std::nullopt) << "cut";
    }
    Bytes failures(3 * 64 + 10, 0);
    for (std::uint8_t each = 1; each <= 3; ++each)
        failures[each * 64U - 10U] = each;
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
    const Administrators administrators(
        "sudo:x:27:ana, eva\nwheel:x:10:\nusers:x:100:joe\nsudoers:x:28:joe\n");
    for (const Account& account :
         {Account{"ana", 1000, 1000, ""}, {"eva", 1001, 1001, ""}, {"kim", 1004, 10, ""}})
        EXPECT_TRUE(administrators.contains(account)) << account.name;
    for (const Account& account : {Account{"an", 1002, 1002, ""}, {"joe", 1003, 100, ""}})
        EXPECT_FALSE(administrators.contains(account)) << account.name;
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
} // namespace ostrelum::linux_platform
