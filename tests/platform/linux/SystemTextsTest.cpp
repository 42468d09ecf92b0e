#include "platform/linux/devices/CpuPackages.h"
#include "platform/linux/formats/BuildDate.h"
#include "platform/linux/formats/CimDateTime.h"
#include "platform/linux/formats/ConfigText.h"
#include "platform/linux/formats/CpuInfo.h"
#include "platform/linux/formats/InstallationId.h"
#include "platform/linux/formats/LocaleIds.h"
#include "platform/linux/formats/VolumeSerial.h"
#include "platform/linux/os/Distribution.h"
#include "platform/linux/os/KernelRelease.h"
#include "platform/linux/os/Processes.h"
#include "tests/Split.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

using namespace std::string_literals;

TEST(KernelVersion, SurvivesTheCutOfThePages)
{
    for (const auto& [release, text] :
         pairs("6.18.44-fc-v595=6.x 6.18|6.1.0-28-amd64=6.1.0-28|6.8.0-45-generic=6.8.0-45|"
               "6.8.0-101-generic=6.8.0101|6.14.0-63.fc42.x86_64=6.x 6.14|7.0.3-arch1-1=7.0.0003|"
               "6.6.87.2-microsoft-standard=6.6.0087|6.1=6.1.0000|6.9.0-rc3-7=6.9.0000|"
               "6.8.1-060801-generic=6.8.0001"))
        EXPECT_EQ(kernel_version_text(release), text) << release;
    for (const char* none : {"", "linux", "6", "6.", ".6"})
        EXPECT_FALSE(kernel_version_text(none)) << none;
}

TEST(CimDateTime, IsLocalTimeWithItsOffset)
{
    const std::tuple<std::int64_t, int, std::optional<std::string>> cases[] = {
        {0, 0, "19700101000000.000000+000"},  {1795383844, 60, "20261122224404.000000+060"},
        {-1, 0, "19691231235959.000000+000"}, {253'402'300'799, 0, "99991231235959.000000+000"},
        {253'402'300'800, 0, std::nullopt},   {INT64_MAX, 60, std::nullopt},
        {INT64_MIN, -60, std::nullopt},       {0, 1000, std::nullopt},
    };
    for (const auto& [moment, utc_offset, expected] : cases)
        EXPECT_EQ(cim_datetime(moment, utc_offset), expected) << moment;
}

TEST(BuildDate, IsFoundInBuildLines)
{
    using namespace std::chrono;
    EXPECT_EQ(build_date("#45-Ubuntu SMP Fri Aug 30 12:02:04 UTC 2024"), 2024y / August / 30);
    EXPECT_EQ(build_date("#1 SMP PREEMPT_DYNAMIC Debian 6.1.119-1 (2024-11-22)"),
              2024y / November / 22);
    EXPECT_EQ(build_date("#1 Wed May  1 07:11:28 PM CEST 2024"), 2024y / May / 1);
    for (const char* none : {"#1 Thu Feb 30 07:11:28 UTC 2023", "#1 Thu Feb 28 07:11:28 UTC",
                             "(2024-13-01) (2024/11/22) Jan", ""})
        EXPECT_EQ(build_date(none), std::nullopt) << none;
}

TEST(LocaleIds, KnowCountriesLanguagesAndNeutralLocales)
{
    for (const auto& [locale, id] :
         pairs("nl_NL=1043|en_GB.UTF-8=2057|C.UTF-8=1033|POSIX=1033|es_UY.UTF-8=11274|"
               "sr_RS.UTF-8@latin=9242|de_DE@euro=1031"))
        EXPECT_EQ(locale_id(locale), std::stoul(id)) << locale;
    for (const char* none : {"xx_XX", "", "zz"})
        EXPECT_FALSE(locale_id(none)) << none;
}

/// The notebook's page shows the one that comes of a machine's own.
TEST(InstallationId, NeedsAMachineId)
{
    for (const char* none : {"", "uninitialized", "0123", "00000000000000000000000000000000"})
        EXPECT_FALSE(installation_id(none)) << none;
}

TEST(ConfigText, TakesTheLastAssignmentAndASectionsOwnKeys)
{
    const std::string shell =
        "A=1\n#A=2\nexport A=\"x \\\"y\\\"\"\nB='p q'\nC=\nAB=no\nD=unq rest\n";
    EXPECT_EQ(assigned(shell, "A"), "x \"y\"");
    EXPECT_EQ(assigned(shell, "B"), "p q");
    EXPECT_EQ(assigned(shell, "C"), std::nullopt);
    EXPECT_EQ(assigned(shell, "D"), "unq");
    const std::string sections =
        "workgroup = no\n[Global]\n; workgroup = no\n  WorkGroup =  HOME \n[x]\nworkgroup=no\n";
    EXPECT_EQ(value_in_section(sections, "global", "workgroup"), "HOME");
    EXPECT_EQ(value_in_section(sections, "global", "realm"), std::nullopt);
}

TEST(Versions, CountTheirParts)
{
    EXPECT_EQ(dotted_number("24.04.3 LTS (Noble)", 2), 3U);
    EXPECT_EQ(dotted_number("12.8", 1), 8U);
    EXPECT_EQ(dotted_number("trixie/sid", 1), 0U);
    EXPECT_EQ(dotted_number("9.99999999999999999999", 1), 0U);
}

TEST(Processes, KernelThreadsAreToldByTheirFlags)
{
    EXPECT_EQ(is_kernel_thread("2 (kthreadd) S 0 0 0 0 -1 2129984 0"), true);
    EXPECT_EQ(is_kernel_thread("9 (a) b (c)) S 1 9 9 0 -1 4194560 0"), false);
    for (const char* none : {"", "1 (x", "1 (x) S 0 0", "1 (x) S 0 0 0 0 -1 none 0"})
        EXPECT_EQ(is_kernel_thread(none), std::nullopt) << none;
}

/// A thread of the kernel may be about to become a program when it is first seen.
TEST(Processes, AreAskedUntilTheirKindIsCertain)
{
    const TemporaryFolder folder;
    const Sysroot root(folder / "");
    std::vector<SeenProcess> seen;
    const auto count = [&](const char* number, const char* flags) {
        folder.file("proc/"s + number + "/stat", number + " (x) S 1 1 1 0 -1 "s + flags + " 0\n");
        return process_count(root, seen);
    };
    EXPECT_EQ(count("30", "2129984"), std::nullopt);
    EXPECT_EQ(count("1", "4194560"), 1U);
    EXPECT_EQ(count("2", "2129984"), 1U);
    EXPECT_EQ(count("2", "4194560"), 2U);
    EXPECT_EQ(count("30", "4194560"), 2U);
    std::filesystem::remove_all(folder / "proc/2");
    EXPECT_EQ(count("40", "4194560"), 2U);
}

TEST(CpuTexts, ListsClocksAndNames)
{
    EXPECT_EQ(numbers_of_list("0-2,5"), (std::vector<std::uint64_t>{0, 1, 2, 5}));
    EXPECT_EQ(numbers_of_list("0-8191").size(), 8192U);
    for (const char* none : {"", "3-1", "0-", "0,", "-1", "0 1", "0-8192", "0-4294967295",
                             "0-3,3-4", "0-8191,0-8191", "x", "1,,2"})
        EXPECT_TRUE(numbers_of_list(none).empty()) << none;
    EXPECT_EQ(megahertz_in_name("Intel(R) Core(TM) i5 CPU M 560 @ 2.67GHz"), 2670U);
    for (const char* none : {"AMD Ryzen", "x @ GHz", "GHz @ 2", "x @ 1e9GHz", "x @ -1GHz"})
        EXPECT_FALSE(megahertz_in_name(none)) << none;
    const CpuInfo cpuinfo("processor\t: 0\ncpu MHz\t\t: 800.5\nbogomips: 1600\nflags: tsc\n\n"
                          "processor\t: 1\ncpu MHz\t\t: 900\nflags: fpu constant_tsc\n\n"
                          "processor\t: 2\nbogomips: 1600\nflags: constant_tsc\n\n");
    EXPECT_EQ(cpuinfo.of(1).megahertz(), 900);
    EXPECT_EQ(cpuinfo.of(7).megahertz(), 800.5) << "the first where there is no such number";
    EXPECT_EQ(cpuinfo.of_all({0, 1, 7}).size(), 2U);
    EXPECT_EQ(cpuinfo.of_all({7, 8}).size(), 1U) << "and that once";
    EXPECT_FALSE(cpuinfo.of(0).rated_megahertz()) << "the counter's clock changes";
    EXPECT_FALSE(cpuinfo.of(1).rated_megahertz());
    EXPECT_EQ(cpuinfo.of(2).rated_megahertz(), 800);
}

TEST(VolumeSerials, AreEightDigitsOfTheIdentity)
{
    EXPECT_EQ(serial_of_identity("5c1d-22f0", "vfat"), "5C1D22F0");
    EXPECT_EQ(serial_of_identity("5b1116fb-b0f4-4f70-a3a5-1ab6d1b0f2d6", "ext4"), "5B1116FB");
    EXPECT_EQ(serial_of_identity("01d9abcd12345678", "NTFS"), "12345678");
    for (const char* none : {"", "2026-11-22-21-15-09-00", "xyz!-1234", "5B11"})
        EXPECT_FALSE(serial_of_identity(none, "ext4")) << none;
}

} // namespace
} // namespace ostrelum::linux_platform
