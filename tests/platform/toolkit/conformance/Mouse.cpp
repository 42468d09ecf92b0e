#include "tests/platform/toolkit/conformance/Conformance.h"

/// Which control the mouse is for, and what it raises.
namespace ostrelum::conformance {
namespace {

TEST_P(Conformance, TheMouseReachesTheControlThatListens)
{
    const struct {
        const char* about;
        Point at;
        int button;
        Calls expected;
    } cases[] = {
        {"a control in a box",
         {15, 96},
         left_button,
         {"Menu_MouseDown(3) 1 0 5,6", "Menu_MouseUp(3) 1 0 5,6", "Menu_Click(3)"}},
        {"no click of another button",
         {15, 16},
         right_button,
         {"Menu_MouseDown(1) 2 0 5,6", "Menu_MouseUp(1) 2 0 5,6"}},
        {"the middle button",
         {11, 11},
         middle_button,
         {"Menu_MouseDown(1) 4 0 1,1", "Menu_MouseUp(1) 4 0 1,1"}},
        {"a box", {90, 190}, left_button, {"Column_MouseDown 1 0 90,190", "Column_Click"}},
        {"a label to which nobody listens in a box", {8, 53}, left_button, {"Bar_Click"}},
        {"a box over a label", {12, 72}, left_button, {"Bar_Click"}},
        {"a label to which nobody listens", {122, 13}, right_button, {"Form_MouseDown 2 0 122,13"}},
        {"through a line", {90, 180}, right_button, {"Column_MouseDown 2 0 90,180"}},
        {"a button", {160, 160}, left_button, {"Ok_Click"}},
        {"a box to tick", {128, 90}, left_button, {"Tick_Click"}},
    };
    form.Rule = {.X1 = 80, .Y1 = 180, .X2 = 99, .Y2 = 180};
    toolkit.Refresh(form);
    for (const auto& c : cases)
        EXPECT_EQ(press(c.at, c.button), c.expected) << c.about;
    form.Ok.Enabled = false;
    form.Menu(3).Visible = false;
    toolkit.Refresh(form);
    EXPECT_EQ(press({160, 160}), Calls{}) << "a disabled button";
    EXPECT_EQ(press({15, 96}).front(), "Column_MouseDown 1 0 15,96") << "under a hidden label";
    form.Column.Left = 2;
    form.Column.Top = 3;
    toolkit.Refresh(form);
    EXPECT_EQ(press({17, 19}).front(), "Menu_MouseDown(1) 1 0 5,6") << "it moves with its box";
}

TEST_P(Conformance, AControlKeepsTheMouseWhileAButtonIsDown)
{
    constexpr int shift_and_alt = 5;
    driver->button_down(form, {15, 15}, left_button, shift_and_alt);
    driver->move_mouse(form, {15, 160});
    driver->button_up(form, {15, 110}, left_button, 0);
    EXPECT_EQ(take_calls(), (Calls{"Menu_MouseDown(1) 1 5 5,5", "Menu_MouseUp(1) 1 0 5,100"}))
        << "a release outside is no click";
    driver->move_mouse(form, {50, 180});
    EXPECT_EQ(take_calls(), Calls{"Column_MouseMove 0 0 50,180"});
    driver->button_down(form, {50, 180}, left_button, 0);
    take_calls();
    driver->move_mouse(form, {150, 180});
    EXPECT_EQ(take_calls(), Calls{"Column_MouseMove 1 0 150,180"});
    driver->button_up(form, {150, 180}, left_button, 0);
    EXPECT_EQ(take_calls(), Calls{});

    driver->button_down(form, {15, 15}, left_button, 0);
    driver->button_down(form, {15, 110}, right_button, 0);
    driver->button_up(form, {15, 110}, right_button, 0);
    driver->button_up(form, {15, 110}, left_button, 0);
    EXPECT_EQ(take_calls(), (Calls{"Menu_MouseDown(1) 1 0 5,5", "Menu_MouseDown(1) 2 0 5,100",
                                   "Menu_MouseUp(1) 2 0 5,100", "Menu_MouseUp(1) 1 0 5,100"}));
}

} // namespace
} // namespace ostrelum::conformance
