#include "tests/platform/toolkit/conformance/Conformance.h"

/// Menus that pop up.
namespace ostrelum::conformance {
namespace {

constexpr int shift = 1;
const std::vector<MenuEntry> entries{
    {"First", false, false}, {"-", true, false}, {"Last", true, true, "Ctrl+Q"}};

TEST_P(Conformance, TheMenuKeyFallsBackToTheForm)
{
    key(Key::Tab);
    key(Key::F10);
    EXPECT_EQ(take_calls(), Calls{"Form_KeyDown F10"}) << "without Shift it is no menu key";
    key(Key::F10, shift);
    EXPECT_EQ(take_calls(), (Calls{"Menu_MouseDown(1) 2 0 29,9", "Menu_MouseUp(1) 2 0 29,9",
                                   "Form_MouseDown 2 0 149,99"}));
    acts["Form_MouseDown"] = [&] { toolkit.popup(form, form.Pops, std::nullopt, &form.Last); };
    key(Key::Menu);
    EXPECT_EQ(driver->menu(), entries);
    EXPECT_EQ(driver->menu_place(form), (Point{149, 99})) << "not at the mouse";
    driver->choose(form, nullptr);

    acts["Menu_MouseDown"] = [&] { toolkit.popup(form, form.Pops, std::nullopt, &form.Last); };
    take_calls();
    key(Key::Menu);
    EXPECT_EQ(driver->menu_place(form), (Point{39, 19})) << "the control's own menu";
    EXPECT_EQ(take_calls(), (Calls{"Menu_MouseDown(1) 2 0 29,9", "Menu_MouseUp(1) 2 0 29,9"}));
    driver->choose(form, nullptr);
}

TEST_P(Conformance, AMenuRaisesTheChoiceAfterItHasGone)
{
    acts["Column_MouseDown"] = [&] { toolkit.popup(form, form.Pops, Point{20, 30}, &form.Last); };
    acts["Last_Click"] = [&] { EXPECT_EQ(driver->menu(), std::vector<MenuEntry>{}); };
    const struct {
        const MenuItem* entry;
        Calls expected;
    } cases[] = {{&form.Last, {"Last_Click"}}, {&form.First, {}}, {nullptr, {}}};
    for (const auto& c : cases) {
        driver->button_down(form, {90, 190}, left_button, 0);
        EXPECT_EQ(driver->menu(), entries);
        EXPECT_EQ(driver->menu_place(form), (Point{20, 30}));
        take_calls();
        driver->choose(form, c.entry);
        EXPECT_EQ(take_calls(), c.expected);
    }
}

TEST_P(Conformance, AMenuTakesTheReleaseOfTheButtonThatBroughtItUp)
{
    acts["Column_MouseDown"] = [&] { toolkit.popup(form, form.Pops, Point{20, 30}, nullptr); };
    driver->button_down(form, {90, 190}, right_button, 0);
    driver->button_up(form, {90, 190}, right_button, 0);
    driver->choose(form, nullptr);
    take_calls();
    EXPECT_EQ(press({15, 16}),
              (Calls{"Menu_MouseDown(1) 1 0 5,6", "Menu_MouseUp(1) 1 0 5,6", "Menu_Click(1)"}))
        << "the column does not hold the mouse any more";
}

} // namespace
} // namespace ostrelum::conformance
