#include "tests/Split.h"
#include "tests/Stage.h"

#include "frame/Page.h"

namespace ostrelum {
namespace {

class Navigation : public Stage {
protected:
    Navigation() { start_program(); }

    void move(int x, int y)
    {
        F1.raise("S", {.kind = EventKind::MouseMove, .index = 1, .x = x, .y = y});
    }
    void release(std::string_view control, int index, int button, int x = 0, int y = 0)
    {
        F1.raise(control,
                 {.kind = EventKind::MouseUp, .index = index, .button = button, .x = x, .y = y});
    }
};

TEST_F(Navigation, EveryEntryOpensItsSection)
{
    for (int n = 1; n <= 13; ++n) {
        press("LMenu", n);
        EXPECT_EQ(F1.Seccion, n);
        EXPECT_EQ(F1.BM.Top, 49 + 35 * (n - 1));
        EXPECT_TRUE(F1.BM.Visible);
        EXPECT_EQ(F1.LMenu2.Caption, Trad[static_cast<std::size_t>(n + 10)]);
        EXPECT_EQ(F1.Titulo.Caption, Trad[static_cast<std::size_t>(n + 10)]);
        EXPECT_EQ(F1.Labelmi.Caption, "Done");
        EXPECT_TRUE(F1.TAlphaB.Enabled);
    }
}

TEST_F(Navigation, TheColumnIsOneTargetByHeight)
{
    press("LMenu", 5);
    const struct {
        int y, section;
    } cases[] = {{48, 5}, {504, 5}, {49, 1}, {83, 1}, {84, 2}, {503, 13}, {-1, 13}, {552, 13}};
    for (const auto& c : cases) {
        press("S", 1, LeftButton, 150, c.y);
        EXPECT_EQ(F1.Seccion, c.section) << c.y;
    }
    press("S", 2, LeftButton, 10, 200);
    EXPECT_EQ(F1.Seccion, 13) << "only the column takes presses";
}

TEST_F(Navigation, OtherButtonsAndAnOpenPanelDoNothing)
{
    press("LMenu", 4, RightButton);
    press("LMenu", 4, MiddleButton);
    press("S", 1, RightButton, 10, 200);
    EXPECT_EQ(F1.Seccion, 1);
    F1.PanelOpen = true;
    press("LMenu", 4);
    click("BM");
    release("LOpc", 0, LeftButton);
    EXPECT_EQ(F1.Seccion, 1);
    EXPECT_TRUE(toolkit.popups.empty());
    move(10, 60);
    EXPECT_EQ(F1.S(1).MousePointer, Pointer::Arrow);
}

TEST_F(Navigation, TheBarReloadsTheOpenSectionWithoutTheWaitingText)
{
    press("LMenu", 8);
    for (const char* control : {"LMenu2", "BM"}) {
        script.asked.clear();
        F1.Line2.Visible = true;
        click(control);
        EXPECT_EQ(script.asked.size(), 1U) << control;
        EXPECT_TRUE(F1.Line2.Visible) << "the page was already the one on show";
    }
}

TEST_F(Navigation, TheOptionsMenuPopsUpFromTabWordAndLogo)
{
    release("S", 1, LeftButton, 134, 30);
    release("LOpc", 0, LeftButton);
    release("MenuLogo", 0, LeftButton);
    ASSERT_EQ(toolkit.popups.size(), 3U);
    EXPECT_EQ(toolkit.popups[0].menu, &F1.MenuOps);
    EXPECT_EQ(toolkit.popups[0].at, (Point{25, 14}));
    EXPECT_EQ(toolkit.popups[0].bold, &F1.Quit);
    release("S", 1, LeftButton, 135, 30);
    release("S", 1, LeftButton, 134, 31);
    release("S", 1, RightButton, 10, 10);
    release("LOpc", 0, RightButton);
    EXPECT_EQ(toolkit.popups.size(), 3U);
}

TEST_F(Navigation, TheHandShowsOverTabAndRowsOnly)
{
    const struct {
        int x, y;
        Pointer pointer;
    } cases[] = {{0, 0, Pointer::Hand},    {135, 0, Pointer::Arrow},  {0, 31, Pointer::Arrow},
                 {160, 49, Pointer::Hand}, {160, 48, Pointer::Arrow}, {5, 503, Pointer::Hand},
                 {5, 504, Pointer::Arrow}};
    for (const auto& c : cases) {
        move(c.x, c.y);
        EXPECT_EQ(F1.S(1).MousePointer, c.pointer) << c.x << "," << c.y;
    }
}

TEST_F(Navigation, LockGreysAndUnlockGivesBack)
{
    LockMenu();
    EXPECT_EQ(F1.LMenu(13).ForeColor, RGB(215, 215, 215));
    EXPECT_EQ(F1.LOpc.ForeColor, RGB(215, 215, 215));
    EXPECT_EQ(F1.BM.MousePointer, Pointer::Arrow);
    UnlockMenu();
    EXPECT_EQ(F1.LMenu(13).ForeColor, White);
    EXPECT_EQ(F1.LOpc.ForeColor, RGB(250, 250, 250));
    EXPECT_EQ(F1.MenuLogo.MousePointer, Pointer::Hand);
}

TEST_F(Navigation, ClearPageEmptiesWhatTheSectionLeft)
{
    set_row(3, "Name:", std::string("value"));
    F1.LT(3).ToolTipText = "told";
    F1.Iaviso.Visible = F1.Line1.Visible = true;
    ClearPage();
    EXPECT_EQ(F1.LT(3).Caption + F1.L(3).Caption + F1.LT(3).ToolTipText + F1.L(3).ToolTipText, "");
    EXPECT_FALSE(F1.Iaviso.Visible || F1.Line1.Visible || F1.LineInf.Visible);
    EXPECT_EQ(F1.Labelmi.Caption, "");
}

TEST_F(Navigation, RightClickOffersCopyWhereTheRowHasSomething)
{
    // By section, the rows that can be copied.
    const auto copied = split("|3 4 5 6 10 11 12 |1 2 3 4 5 6 7 8 9 10 |1 2 3 4 5 6 |"
                              "1 2 3 4 5 6 7 8 9 10 11 |1 2 3 4 5 6 7 8 9 |1 2 3 4 5 6 7 8 |"
                              "1 2 3 4 5 6 7 8 9 |1 2 3 4 5 |1 2 3 4 6 7 8 9 10 11 |"
                              "1 2 4 5 6 7 8 |1 2 3 4 5 6 7 8 |1 2 3 4 5 6 7 |"
                              "1 2 3 5 6 8 9 10 11 12 ");
    for (std::uint8_t section = 1; section <= 13; ++section) {
        F1.Seccion = section;
        std::string offered;
        for (int row = 1; row <= 12; ++row) {
            press(row % 2 ? "LT" : "L", row, RightButton);
            EXPECT_EQ(F1.CopyRow, row);
            if (F1.Copy.Enabled)
                offered += std::to_string(row) + " ";
        }
        EXPECT_EQ(offered, copied[section]) << int{section};
    }
}

TEST_F(Navigation, RightClickBesideTheRowsOffersCopyAllOnly)
{
    const struct {
        std::uint8_t section, media;
        bool menu;
    } cases[] = {{8, 0, true},          {11, 0, false}, {11, 1, true},
                 {12, 0, false},        {12, 2, true},  {CustomisePanel, 1, false},
                 {AboutPanel, 1, false}};
    for (const auto& c : cases) {
        F1.Seccion = c.section;
        F1.MediaCount = c.media;
        F1.Copy.Enabled = true;
        toolkit.popups.clear();
        press("TapaBorde", 0, RightButton);
        press("Form", 0, LeftButton);
        EXPECT_EQ(toolkit.popups.size(), c.menu ? 1U : 0U) << int{c.section};
        EXPECT_EQ(F1.Copy.Enabled, !c.menu);
        toolkit.popups.clear();
        press("L", 4, RightButton);
        EXPECT_EQ(toolkit.popups.size(), c.section < 90 ? 1U : 0U) << int{c.section};
    }
}

TEST_F(Navigation, TheLanguageListTakesEffectInMenuAndPanel)
{
    press("LMenu", 3);
    F1.SeccionPrev = 3;
    F1.Seccion = CustomisePanel;
    choose(F1, F1.LangList, 1);
    EXPECT_EQ(Idioma, "Spanish");
    EXPECT_EQ(F1.LMenu(2).Caption, "Usuario");
    EXPECT_EQ(F1.LMenu2.Caption, F1.LMenu(3).Caption);
    EXPECT_EQ(F1.Titulo.Caption, Trad[6]);
    EXPECT_EQ(F1.CheckTrans.Caption, " " + Trad[155]);
    EXPECT_EQ(F1.CopyAll.Caption, Trad[25]);
    EXPECT_EQ(stored("Language"), "English") << "only Accept reaches the store";
}

TEST_F(Navigation, EveryHandlerHasItsControl)
{
    for (const HandlerTable& table : F1.handlers) {
        for (const Handler& handler : table) {
            const bool array = F1.find(handler.control, 1) != nullptr;
            EXPECT_TRUE(handler.control == "Form" || array || F1.find(handler.control))
                << handler.control;
        }
    }
}

} // namespace
} // namespace ostrelum
