#include "platform/linux/Facts.h"
#include "platform/linux/CimDateTime.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

TEST(RecordedFacts, AreReadFromTheirFolder)
{
    const TemporaryFolder machine;
    machine.file(".facts/statvfs",
                 "/ 4096 10 9 8\n/mnt 1 2 3 4\n/mnt/my disk 512 7 6 5\n/bad 1 2\n");
    machine.file(".facts/btime", "/ 1795383844\n/lost+found x\n");
    machine.file(".facts/env", "LC_ALL=\nLANG=es_AR.UTF-8\n");
    const auto facts = recorded_facts(Sysroot(machine / ""));
    EXPECT_EQ(facts->space("/"), (VolumeSpace{4096, 10, 9, 8}));
    EXPECT_EQ(facts->space("/mnt/my disk"), (VolumeSpace{512, 7, 6, 5}));
    for (const char* path : {"/mnt/my", "/bad", "/none", ""})
        EXPECT_EQ(facts->space(path), std::nullopt) << path;
    EXPECT_EQ(facts->birth_time("/"), 1795383844);
    EXPECT_EQ(facts->birth_time("/lost+found"), std::nullopt);
    EXPECT_EQ(facts->variable("LANGUAGE"), std::nullopt);
}

TEST(CimDateTime, IsLocalTimeWithItsOffset)
{
    const struct {
        std::int64_t moment;
        int utc_offset;
        std::optional<std::string> expected;
    } cases[] = {
        {0, 0, "19700101000000.000000+000"},
        {1795383844, 60, "20261122224404.000000+060"},
        {1795383844, -180, "20261122184404.000000-180"},
        {-1, 0, "19691231235959.000000+000"},
        {253'402'300'799, 0, "99991231235959.000000+000"},
        {253'402'300'800, 0, std::nullopt},
        {INT64_MAX, 60, std::nullopt},
        {INT64_MIN, -60, std::nullopt},
        {0, 1000, std::nullopt},
    };
    for (const auto& each : cases)
        EXPECT_EQ(cim_datetime(each.moment, each.utc_offset), each.expected) << each.moment;
}

} // namespace
} // namespace ostrelum
