#include "tests/platform/toolkit/conformance/Conformance.h"

/// Windows of forms: how they come, what they let through, and how they go.
namespace ostrelum::conformance {
namespace {

void set_alpha(Toolkit& toolkit, Form& form, int alpha)
{
    toolkit.SetLayeredWindowAttributes(form, 0, static_cast<std::uint8_t>(alpha), alpha_flag);
}

void make_layered(Toolkit& toolkit, Form& form)
{
    const std::int32_t style = toolkit.GetWindowLongA(form, extended_style_index);
    toolkit.SetWindowLongA(form, extended_style_index, style | layered_style);
}

/// The system may give a window further styles of its own.
int layered_part(Toolkit& toolkit, const Form& form)
{
    return toolkit.GetWindowLongA(form, extended_style_index) & layered_style;
}

TEST_P(Conformance, AFormComesUpWithItsFrameAndGoes)
{
    EXPECT_TRUE(driver->is_on_screen(form));
    EXPECT_EQ(driver->title(form), "Sample");
    EXPECT_EQ(driver->size(form), (Point{300, 200}));
    form.Caption = "Other";
    toolkit.Show(form);
    EXPECT_EQ(driver->title(form), "Other");
    toolkit.Hide(form);
    toolkit.Hide(form);
    EXPECT_FALSE(driver->is_on_screen(form));
    toolkit.Show(form);
    EXPECT_TRUE(driver->is_on_screen(form));
    EXPECT_EQ(calls, Calls{});
}

TEST_P(Conformance, ClosingAsksTheForm)
{
    acts["refuse"] = [] {};
    driver->close(form);
    EXPECT_TRUE(driver->is_on_screen(form));
    acts.clear();
    driver->close(form);
    EXPECT_FALSE(driver->is_on_screen(form));
    EXPECT_EQ(calls, (Calls{"Form_Unload", "Form_Unload"}));
}

TEST_P(Conformance, AModalFormTakesTheInputOfOthersUntilItIsHidden)
{
    dialog.Clock.Enabled = true;
    acts["Clock_Timer"] = [&] {
        dialog.Clock.Enabled = false;
        EXPECT_TRUE(driver->is_on_screen(dialog));
        take_calls();
        EXPECT_EQ(press({15, 16}), Calls{}) << "of the form below";
        EXPECT_TRUE(Unload(toolkit, dialog));
    };
    driver->show_modal(dialog);
    EXPECT_FALSE(driver->is_on_screen(dialog));
    EXPECT_EQ(take_calls(), Calls{"Form_Unload"});
    EXPECT_EQ(press({15, 16}).size(), 3U) << "the form below has its input again";
}

TEST_P(Conformance, AControlMayTakeItsOwnWindowAway)
{
    acts["Menu_MouseDown"] = [&] { toolkit.Hide(form); };
    EXPECT_EQ(press({15, 16}), Calls{"Menu_MouseDown(1) 1 0 5,6"});
    toolkit.Show(form);
    driver->press_key(form, Key::Tab, 0);
    driver->press_key(form, Key::Enter, 0);
    EXPECT_EQ(calls, Calls{"Menu_MouseDown(1) 1 0 29,9"});
}

TEST_P(Conformance, OpacitySetBeforeTheWindowHoldsAndGoesWithIt)
{
    toolkit.Hide(form);
    EXPECT_EQ(layered_part(toolkit, form), 0);
    set_alpha(toolkit, form, 10);
    make_layered(toolkit, form);
    set_alpha(toolkit, form, 51);
    toolkit.Show(form);
    EXPECT_NEAR(driver->opacity(form), 51, 1);
    EXPECT_EQ(layered_part(toolkit, form), layered_style);
    set_alpha(toolkit, form, 0);
    EXPECT_EQ(driver->opacity(form), 0);

    toolkit.Hide(form);
    toolkit.Show(form);
    EXPECT_EQ(driver->opacity(form), 255) << "a new window starts opaque";
    EXPECT_EQ(layered_part(toolkit, form), 0);
    set_alpha(toolkit, form, 10);
    make_layered(toolkit, form);
    EXPECT_EQ(driver->opacity(form), 255) << "it was not a layered window then";
}

TEST_P(Conformance, TheScreensCursorLiesOverThoseOfTheControls)
{
    EXPECT_EQ(look(form.Menu(1)).cursor, MouseCursor::Hand);
    EXPECT_EQ(look(form.Column).cursor, MouseCursor::Default);
    form.Menu(1).MousePointer = MouseCursor::Default;
    form.Column.MousePointer = MouseCursor::Arrow;
    toolkit.Refresh(form);
    EXPECT_EQ(look(form.Menu(1)).cursor, MouseCursor::Default);
    EXPECT_EQ(look(form.Column).cursor, MouseCursor::Arrow);
    for (const auto cursor : {MouseCursor::Hourglass, MouseCursor::Hand, MouseCursor::Default}) {
        toolkit.set_screen_cursor(cursor);
        EXPECT_EQ(driver->screen_cursor(), cursor);
    }
}

} // namespace
} // namespace ostrelum::conformance
