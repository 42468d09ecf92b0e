#include "tests/platform/toolkit/conformance/Conformance.h"

/// Timers, and when events come.
namespace ostrelum::conformance {
namespace {

TEST_P(Conformance, ATimerStopsInItsOwnTickAndStartsAgain)
{
    int ticks = 0;
    acts["Clock_Timer"] = [&] { form.Clock.Enabled = ++ticks % 3 != 0; };
    for (const int expected : {3, 6}) {
        form.Clock.Enabled = true;
        toolkit.Refresh(form);
        EXPECT_TRUE(driver->wait_for([&] { return ticks == expected; }));
        driver->let_time_pass(80);
        EXPECT_EQ(ticks, expected);
    }
    form.Clock.Enabled = true;
    toolkit.Refresh(form);
    toolkit.Hide(form);
    driver->let_time_pass(80);
    EXPECT_EQ(ticks, 6) << "none without a window";
}

TEST_P(Conformance, ATimerTicksNoFasterThanItsIntervalOrTheScreen)
{
    constexpr int tolerance = 3;
    for (const auto& [interval, expected] : {std::pair(1, frame_time), std::pair(60, 60)}) {
        int ticks = 0;
        acts["Clock_Timer"] = [&] { ++ticks; };
        form.Clock = {.Interval = interval, .Enabled = true};
        toolkit.Refresh(form);
        const int start = driver->now();
        EXPECT_TRUE(driver->wait_for([&] { return ticks == 3; }));
        EXPECT_GE(driver->now() - start, 3 * expected - tolerance) << interval;
        form.Clock.Enabled = false;
        toolkit.Refresh(form);
    }
}

TEST_P(Conformance, EventsComeInsideAnotherOnlyWhereItLetsThem)
{
    form.Clock.Enabled = true;
    bool inside = false;
    acts["Clock_Timer"] = [&] { EXPECT_TRUE(inside); };
    acts["Ok_Click"] = [&] {
        toolkit.Refresh(form);
        driver->stay_busy(80);
        EXPECT_EQ(calls, Calls{"Ok_Click"});
        inside = true;
        toolkit.DoEvents();
        EXPECT_EQ(calls, (Calls{"Ok_Click", "Clock_Timer"}));
        form.Clock.Enabled = false;
    };
    key(Key::Enter);
    EXPECT_EQ(calls.size(), 2U);
}

TEST_P(Conformance, WhatAnEventChangesShowsAfterItOrAtARefresh)
{
    acts["Ok_Click"] = [&] {
        form.Ok.Caption = "Changed";
        EXPECT_EQ(look(form.Ok).text, "Fine");
        form.No.Caption = "Other";
        toolkit.Refresh(form);
        EXPECT_EQ(look(form.No).text, "Other");
        form.Tick.Caption = "Later";
    };
    key(Key::Enter);
    EXPECT_EQ(look(form.Ok).text, "Changed");
    EXPECT_EQ(look(form.Tick).text, "Later");
}

} // namespace
} // namespace ostrelum::conformance
