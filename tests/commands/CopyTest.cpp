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

} // namespace
} // namespace ostrelum
