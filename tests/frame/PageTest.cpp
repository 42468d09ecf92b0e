#include "tests/Stage.h"

#include "frame/Page.h"

namespace ostrelum {
namespace {

class Page : public Stage {
protected:
    Page() { start_program(); }
};

TEST_F(Page, ARowsValueStandsDirectlyBehindItsTitle)
{
    set_row(2, "Größe:", std::string("12 MB"));
    EXPECT_EQ(F1.LT(2).Caption, "Größe: ");
    EXPECT_EQ(F1.L(2).Left, 208 + 7 * MemoryToolkit::CharacterWidth) << "characters, not bytes";
    EXPECT_EQ(F1.L(2).Caption, "12 MB");
    EXPECT_EQ(F1.L(2).ToolTipText, "12 MB");
    set_row(2, "Name:", std::string());
    EXPECT_EQ(F1.L(2).Caption, "Unknown");
    EXPECT_EQ(F1.L(2).ToolTipText, "Unknown");
}

TEST_F(Page, NoValueReachesTheBands)
{
    const ControlEntry* value = F1.find("L", 12);
    for (const ControlEntry* over : {F1.find("TapaBorde"), F1.find("S", 4), F1.find("BAceptar")})
        EXPECT_GT(over, value) << over->name << " lies over the rows";
}

TEST_F(Page, HeadingsTakeTheSkinColourAndPlainTitlesGiveItBack)
{
    set_heading(1, "Main features");
    EXPECT_EQ(F1.LT(1).ForeColor, RGB(0, 84, 189));
    EXPECT_TRUE(F1.LT(1).Font.Italic);
    EXPECT_EQ(F1.L(1).Caption + F1.L(1).ToolTipText, "");
    plain_title(1);
    EXPECT_EQ(F1.LT(1).ForeColor, RGB(32, 32, 32));
    EXPECT_FALSE(F1.LT(1).Font.Italic);
}

TEST_F(Page, AFailedQueryLeavesNothingToWalk)
{
    WmiResult = {Instance({{"n", 1}})};
    query("Select Name from Win32_Nothing");
    EXPECT_TRUE(WmiResult.empty());
    EXPECT_TRUE(holds([]() -> bool { throw Failure("test"); }));
    EXPECT_FALSE(holds([] { return false; }));
}

} // namespace
} // namespace ostrelum
