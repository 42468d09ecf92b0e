#include "console/ConsoleProgram.h"
#include "console/linux/LinuxHost.h"
#include "frame/MainForm.h"

#include <gmock/gmock.h>
#include <malloc.h>
#include <memory>
#include <set>

namespace ostrelum {

using namespace console;
using namespace linux_platform;

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

/// What a machine is asked for.
class Asked : public AccessObserver {
public:
    void on_exists(const std::string& path) override { add(path); }
    void on_read(const std::string& path, const std::optional<std::string>&) override { add(path); }
    void on_read_piece(const std::string& path, std::uint64_t, const std::string&) override
    {
        add(path);
    }
    void on_list(const std::string& path, const std::vector<std::string>&) override { add(path); }
    void on_link(const std::string& path) override { add(path); }
    void on_answer(const std::string& list, const std::string&, const std::string&) override
    {
        add(list);
    }

    std::multiset<std::string> places;

private:
    void add(const std::string& place) { places.insert(place); }
};

TEST(LivePages, ReadWhatTheyShowOnceAndNoMore)
{
    const std::string supply = "/sys/class/power_supply", battery = supply + "/BAT0/";
    const struct {
        const char* root;
        int page;
        std::multiset<std::string> places;
    } cases[] = {
        {"/", 2, {}},
        {"/", 4, {"/proc", "/proc/meminfo"}},
        {"/", 6, {"/proc/meminfo"}},
        // Of processes that it knows, it asks for nothing.
        {OSTRELUM_TESTS_DIR "/machines/notebook",
         4,
         {"/proc", "/proc/meminfo", "/proc/sys/kernel/osrelease"}},
        // It runs on a battery that tells charges, not energy.
        {OSTRELUM_TESTS_DIR "/machines/notebook",
         13,
         {supply, supply + "/AC/type", battery + "type", battery + "scope", battery + "present",
          battery + "voltage_now", battery + "capacity", battery + "status",
          battery + "time_to_empty_now", battery + "energy_now", battery + "charge_now",
          battery + "current_now"}},
    };
    for (const auto& c : cases) {
        const auto asked = std::make_shared<Asked>();
        const auto machine = machine_with(Sysroot(Sysroot(c.root), asked), {});
        ConsoleProgram program(*machine, "English");
        program.page(c.page);
        tick(1);
        asked->places.clear();
        tick(1);
        // Of a running machine others may have begun.
        if (c.root == std::string_view("/"))
            std::erase_if(asked->places,
                          [](const auto& place) { return place.ends_with("/stat"); });
        EXPECT_EQ(asked->places, c.places) << c.page;
    }
}

TEST(LivePages, StandOpenForHoursWithoutGrowing)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer keeps what was given back";
#endif
    const auto machine =
        machine_with(Sysroot(OSTRELUM_TESTS_DIR "/machines/notebook"), {.user = "alma"});
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
