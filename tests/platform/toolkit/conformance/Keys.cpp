#include "tests/platform/toolkit/conformance/Conformance.h"

/// The way of the focus, what keys press, and what the user changes.
namespace ostrelum::conformance {
namespace {

constexpr int shift = 1;

TEST_P(Conformance, TabWalksRoundTheControlsInTheirOrder)
{
    EXPECT_EQ(focused(), form_itself) << "no control is marked before a key is used";
    form.Menu(2).Visible = false;
    form.No.Enabled = false;
    toolkit.Refresh(form);
    for (const int next :
         {place(form.Menu(1)), place(form.Menu(3)), place(form.Ok), place(form.Slide),
          place(form.Tick), place(form.Pick), place(form.Menu(1))}) {
        key(Key::Tab);
        EXPECT_EQ(focused(), next);
        EXPECT_EQ(driver->marked(form), next);
    }
    key(Key::Tab, shift);
    EXPECT_EQ(focused(), place(form.Pick));
    press({90, 190}, middle_button);
    EXPECT_EQ(driver->marked(form), form_itself) << "the mouse needs no mark";
}

TEST_P(Conformance, ArrowsMoveAmongTheEntriesAndEnterAndSpacePressThem)
{
    key(Key::Tab);
    const struct {
        Key key;
        int entry;
    } moves[] = {{Key::Down, 2}, {Key::End, 3}, {Key::Down, 3}, {Key::Up, 2},
                 {Key::Home, 1}, {Key::Up, 1},  {Key::Down, 2}};
    for (const auto& move : moves) {
        key(move.key);
        EXPECT_EQ(focused(), place(form.Menu(move.entry)));
    }
    EXPECT_EQ(calls, Calls{});
    for (const auto which : {Key::Enter, Key::Space}) {
        key(which);
        EXPECT_EQ(take_calls(), (Calls{"Menu_MouseDown(2) 1 0 29,9", "Menu_MouseUp(2) 1 0 29,9",
                                       "Menu_Click(2)"}));
    }
}

TEST_P(Conformance, RowsWithATextAreOneTabStopBehindAllOthersAndArrowsWalkThem)
{
    form.Row(1).Caption = form.Row(3).Caption = "Text";
    form.Menu(2).Chosen = true;
    for (int i = 1; i <= 3; ++i)
        form.Menu(i).Role = LabelRole::Tab;
    toolkit.Refresh(form);
    const int first = place(form.Row(1)), last = place(form.Row(3));
    const struct {
        Key key;
        int shift, next;
    } moves[] = {{Key::Tab, shift, first},
                 {Key::Tab, shift, place(form.Pick)},
                 {Key::Tab, 0, first},
                 {Key::Tab, 0, place(form.Menu(1))},
                 {Key::Right, 0, first},
                 {Key::Up, 0, first},
                 {Key::Down, 0, last},
                 {Key::Down, 0, last},
                 {Key::Home, 0, first},
                 {Key::End, 0, last},
                 {Key::Left, 0, place(form.Menu(2))},
                 {Key::Right, 0, first}};
    for (const auto& move : moves) {
        key(move.key, move.shift);
        EXPECT_EQ(focused(), move.next) << &move - moves;
    }
    form.Row(1).Caption.clear();
    toolkit.Refresh(form);
    EXPECT_EQ(focused(), form_itself) << "there is nothing to read any more";
    key(Key::Up);
    EXPECT_EQ(focused(), last) << "the page is reached from the window";
}

TEST_P(Conformance, ShortcutsGoToTheControlWithTheFocusThatListensElseToTheForm)
{
    form.Row(2).Caption = "Text";
    key(Key::F5);
    key(Key::Tab);
    key(Key::C, control_key);
    EXPECT_EQ(take_calls(), (Calls{"Form_KeyDown F5", "Form_KeyDown other"}));
    key(Key::Tab, shift);
    ASSERT_EQ(focused(), place(form.Row(2)));
    key(Key::C, control_key);
    EXPECT_EQ(take_calls(), Calls{"Row_KeyDown(2) C"});
    key(Key::Tab, shift);
    ASSERT_EQ(focused(), place(form.Pick));
    key(Key::Q, control_key);
    EXPECT_EQ(take_calls(), Calls{"Form_KeyDown other"}) << "not a letter of the list's";
}

TEST_P(Conformance, TheProgramGivesTheFocusToWhatTakesIt)
{
    acts["Ok_Click"] = [&] {
        form.Tick.Visible = true;
        toolkit.SetFocus(form, &form.Tick);
    };
    acts["No_Click"] = [&] { toolkit.SetFocus(form, &form.Slide); };
    form.Tick.Visible = form.Slide.Enabled = false;
    toolkit.Refresh(form);
    key(Key::Escape);
    EXPECT_EQ(focused(), form_itself) << "what is disabled takes none";
    form.Slide.Enabled = true;
    key(Key::Enter);
    EXPECT_EQ(focused(), place(form.Tick)) << "it shows by the same event";
}

TEST_P(Conformance, EnterAndEscapePressTheirButtons)
{
    key(Key::Enter);
    key(Key::Escape);
    EXPECT_EQ(take_calls(), (Calls{"Ok_Click", "No_Click"}));
    key(Key::Tab, shift);
    EXPECT_EQ(focused(), place(form.Pick));
    key(Key::Tab, shift);
    key(Key::Enter);
    EXPECT_EQ(take_calls(), Calls{"Ok_Click"}) << "a box to tick leaves Enter to the default";
    key(Key::Tab, shift);
    key(Key::Tab, shift);
    key(Key::Enter);
    EXPECT_EQ(take_calls(), Calls{"No_Click"}) << "the focus goes before the default";
    form.Ok.Visible = false;
    acts["No_Click"] = [&] { form.No.Visible = false; };
    key(Key::Enter);
    EXPECT_EQ(take_calls(), Calls{"No_Click"});
    EXPECT_EQ(focused(), form_itself) << "the button has gone";
    key(Key::Enter);
    EXPECT_EQ(calls, Calls{}) << "so has the default";
}

TEST_P(Conformance, TheFocusLeavesAControlThatTakesNoneAnyMore)
{
    acts["Menu_MouseDown"] = [&] { form.Menu(1).TabStop = false; };
    key(Key::Tab);
    key(Key::Enter);
    EXPECT_EQ(focused(), form_itself);
    EXPECT_EQ(driver->marked(form), form_itself);
    take_calls();
    key(Key::Enter);
    EXPECT_EQ(take_calls(), Calls{"Ok_Click"}) << "the label's press went before the default";
    key(Key::Tab);
    EXPECT_EQ(focused(), place(form.Menu(2)));

    acts["Ok_Click"] = [&] { form.Ok.Enabled = false; };
    key(Key::Tab);
    key(Key::Tab);
    key(Key::Space);
    EXPECT_EQ(calls, Calls{"Ok_Click"});
    EXPECT_EQ(focused(), place(form.No)) << "from a disabled one to the next";
}

TEST_P(Conformance, TheUsersChangesStandInTheDataWhenTheEventComes)
{
    std::vector<int> values;
    acts["Slide_Change"] = acts["Slide_Scroll"] = [&] { values.push_back(form.Slide.Value); };
    acts["Tick_Click"] = [&] { values.push_back(form.Tick.Value); };
    acts["Pick_Click"] = [&] { values.push_back(form.Pick.ListIndex); };
    for (int tabs = 0; tabs < 6; ++tabs)
        key(Key::Tab);
    ASSERT_EQ(focused(), place(form.Slide));
    for (const auto which : {Key::PageDown, Key::Right, Key::Left, Key::End, Key::End})
        key(which);
    EXPECT_EQ(std::exchange(values, {}), (std::vector{60, 61, 60, 100}));
    EXPECT_EQ(take_calls(), Calls(4, "Slide_Change"));

    driver->drag(form, form.Slide, {70, 75});
    EXPECT_EQ(std::exchange(values, {}), (std::vector{70, 75, 75}));
    EXPECT_EQ(take_calls(), (Calls{"Slide_Scroll", "Slide_Scroll", "Slide_Change"}));
    driver->drag(form, form.Slide, {80, 75});
    EXPECT_EQ(take_calls(), (Calls{"Slide_Scroll", "Slide_Scroll"})) << "back where it was";

    values.clear();
    key(Key::Tab);
    key(Key::Space);
    key(Key::Space);
    key(Key::Tab);
    key(Key::Down);
    EXPECT_EQ(values, (std::vector{1, 0, 2}));
    EXPECT_EQ(take_calls(), (Calls{"Tick_Click", "Tick_Click", "Pick_Click"}));
    EXPECT_EQ(look(form.Pick).value, 2);
}

TEST_P(Conformance, AHandlerMayPutTheUsersChangeBack)
{
    acts["Slide_Change"] = [&] { form.Slide.Value = 50; };
    acts["Tick_Click"] = [&] { form.Tick.Value = 0; };
    for (int tabs = 0; tabs < 6; ++tabs)
        key(Key::Tab);
    key(Key::Right);
    key(Key::Tab);
    key(Key::Space);
    EXPECT_EQ(calls, (Calls{"Slide_Change", "Tick_Click"}));
    EXPECT_EQ(look(form.Slide).value, 50);
    EXPECT_EQ(look(form.Tick).value, 0);
}

} // namespace
} // namespace ostrelum::conformance
