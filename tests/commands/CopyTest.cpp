#include "tests/Stage.h"

namespace ostrelum {
namespace {

using Copying = Stage;

/// What Copy all takes of each page stands with the recorded machines.
TEST_F(Copying, TakesWhatThePageShowsAndPassesOverAClipboardThatFails)
{
    start_program();
    F1.LT(4).Caption = "4: ";
    F1.L(4).Caption = "v";
    F1.CopyRow = 4;
    clipboard.fails = true;
    click("CopyAll");
    click("Copy");
    EXPECT_EQ(clipboard.text, std::nullopt);
    clipboard.fails = false;
    click("Copy");
    EXPECT_EQ(clipboard.text, "4: v");
    F1.CopyRow = 0;
    click("Copy");
    EXPECT_EQ(clipboard.text, std::nullopt) << "cleared all the same";
    F1.Seccion = 10;
    F1.LT(3).Caption = "left over";
    click("CopyAll");
    EXPECT_EQ(clipboard.text->find("left over"), std::string::npos) << "under a line on the page";
}

TEST_F(Copying, TheKeysTakeTheRowThatIsChosenElseThePage)
{
    start_program();
    press("LMenu", 10);
    const auto window = toolkit.window_of(F1);
    const auto copied = [&] {
        window->press_key(Key::C, control_key);
        return *clipboard.text;
    };
    EXPECT_TRUE(copied().starts_with("Keyboard and mouse\r\n"));
    press("LT", 2);
    toolkit.Refresh(F1);
    EXPECT_EQ(copied(), F1.LT(2).Caption + F1.L(2).Caption);
    window->press_key(Key::Down);
    EXPECT_EQ(copied(), F1.LT(4).Caption + F1.L(4).Caption) << "a line lies between";
    for (const int row : {4, 3}) {
        press("LT", row, right_button);
        EXPECT_EQ(F1.Copy.Shortcut.empty(), row == 3) << "an empty row is not copied alone";
        EXPECT_NE(F1.CopyAll.Shortcut.empty(), F1.Copy.Shortcut.empty());
    }
}

} // namespace
} // namespace ostrelum
