#include "console/ConsoleProgram.h"
#include "console/linux/LinuxHost.h"
#include "frame/MainForm.h"

#include <gtest/gtest.h>
#include <malloc.h>

namespace ostrelum {

using namespace console;

namespace {

constexpr int live_pages[] = {2, 4, 6, 13};

void tick(int times)
{
    for (int i = 0; i < times; ++i)
        F1.raise("Timer1", {.kind = EventKind::Timer});
}

/// Bytes that the program has asked for and not given back.
std::size_t memory_in_use()
{
    const struct mallinfo2 told = ::mallinfo2();
    return told.uordblks + told.hblkhd;
}

TEST(LivePages, StandOpenForHoursWithoutGrowing)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer keeps what was given back";
#endif
    const auto machine =
        LinuxHost().open({.sysroot = OSTRELUM_TESTS_DIR "/machines/notebook", .user = "alma"});
    ConsoleProgram program(*machine, "English");
    const auto round = [&](int ticks) {
        for (const int page : live_pages) {
            program.page(page);
            tick(ticks);
            ASSERT_TRUE(F1.Timer1.Enabled) << "page " << page << " is not live";
        }
    };
    round(100);
    const std::size_t before = memory_in_use();
    round(9000);
    EXPECT_LT(memory_in_use(), before + 4096);
}

} // namespace
} // namespace ostrelum
