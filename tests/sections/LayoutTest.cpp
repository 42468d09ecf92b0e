#include "tests/sections/SectionTest.h"

namespace ostrelum {
namespace {

using Layout = SectionTest;

std::string seen_beside_the_rows()
{
    std::string names;
    for (const auto& [visible, name] : {std::pair(F1.Line1.Visible, " Line1"),
                                        {F1.Line2.Visible, " Line2"},
                                        {F1.LNoDrive.Visible, " LNoDrive"},
                                        {F1.Iaviso.Visible, " Iaviso"},
                                        {F1.Laviso.Visible, " Laviso"},
                                        {F1.Timer1.Enabled, " Timer1"}})
        names += visible ? name : "";
    return names;
}

/// Bit i for each row i whose title has a tooltip.
int rows_with_title_tooltips()
{
    int rows = 0;
    for (int row = 1; row <= 12; ++row)
        rows |= F1.LT(row).ToolTipText.empty() ? 0 : 1 << row;
    return rows;
}

TEST_F(Layout, OfEachPageWipesOutThatOfAnother)
{
    const struct {
        int section;
        const char* title;
        const char* seen;
        int title_tooltips = 0b1111111000110;
        int line_row = 0, line_below = 0;
        std::set<int> empty_rows;
    } cases[] = {
        {.section = 1, .title = "Summary", .seen = "", .empty_rows = {2, 7, 9}},
        {2, "User account", " Line1 Iaviso Laviso Timer1", 0b1111111000110, 11, 7, {11, 12}},
        {3, "Computer", "", 0b1111111110110, 0, 0, {7, 8, 9, 10, 11, 12}},
        {.section = 4, .title = "Operating system", .seen = " Timer1", .empty_rows = {12}},
        {.section = 5, .title = "Processor", .seen = "", .empty_rows = {10, 11, 12}},
        {.section = 6, .title = "RAM", .seen = " Timer1", .empty_rows = {9, 10, 11, 12}},
        {.section = 7, .title = "Hard drives", .seen = "", .empty_rows = {10, 11, 12}},
        {.section = 8, .title = "Bios", .seen = "", .empty_rows = {6, 7, 8, 9, 10, 11, 12}},
        {9, "Display", " Line1", 0b1111111011110, 5, 10, {5, 12}},
        {10, "Keyboard and mouse", " Line1", 0b1111111000110, 3, 9, {3, 9, 10, 11, 12}},
        {11, "Removable memory", " Line1 Iaviso Laviso", 0b1111111000110, 9, 4, {9, 10, 11, 12}},
        {12, "CDs/DVDs", " Line1 Iaviso Laviso", 0b1111111000110, 8, 4, {8, 9, 10, 11, 12}},
        {13, "Others hardware", " Line1 Line2 Timer1", 0b1111111000110, 4, 10, {4, 7}},
    };
    press("LMenu", 8);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.title);
        F1.Line1.Visible = F1.Line2.Visible = F1.LNoDrive.Visible = true;
        F1.Iaviso.Visible = F1.Laviso.Visible = true;
        F1.Laviso.ForeColor = rgb(255, 0, 0);
        F1.Timer1.Enabled = false;
        open(c.section);
        press("LMenu", 7, middle_button);
        press("LMenu", 7, right_button);
        EXPECT_EQ(F1.Seccion, c.section);
        EXPECT_EQ(F1.Titulo.Caption, c.title);
        EXPECT_EQ(F1.LMenu2.Caption, c.title);
        EXPECT_EQ(F1.BM.Top, 49 + 35 * (c.section - 1));
        EXPECT_EQ(seen_beside_the_rows(), c.seen);
        EXPECT_EQ(rows_with_title_tooltips(), c.title_tooltips);
        const Colour notice = c.section == 2 ? rgb(75, 75, 75) : rgb(0, 145, 0);
        EXPECT_TRUE(F1.Laviso.ForeColor == notice || !F1.Laviso.Visible);
        if (c.line_row != 0) {
            EXPECT_EQ(F1.Line1.Y1, F1.LT(c.line_row).Top + c.line_below);
            EXPECT_EQ(F1.Line1.Y2, F1.Line1.Y1);
        }
        for (int row = 1; row <= 12; ++row) {
            SCOPED_TRACE(shown(row));
            const bool empty = c.empty_rows.contains(row);
            const bool heading = c.section == 1 && (row == 1 || row == 8);
            const Colour colour = heading ? rgb(SkinR, SkinG, SkinB) : rgb(32, 32, 32);
            EXPECT_TRUE(F1.LT(row).ForeColor == colour || empty);
            EXPECT_TRUE(F1.LT(row).Font.Italic == heading || empty);
            EXPECT_EQ(F1.L(row).Caption.empty(), empty || heading);
            EXPECT_EQ(F1.L(row).ToolTipText, F1.L(row).Caption);
            EXPECT_TRUE(F1.L(row).Left == F1.LT(row).Left + F1.LT(row).Width || empty || heading);
            press(row % 2 ? "LT" : "L", row, right_button);
            EXPECT_EQ(F1.CopyRow, row);
            EXPECT_EQ(F1.Copy.Enabled, !F1.L(row).Caption.empty());
        }
    }
    EXPECT_EQ(F1.Line2.Y1, F1.LT(7).Top + 10);
    EXPECT_EQ(F1.Line2.Y2, F1.Line2.Y1);
}

TEST_F(Layout, HasAHintOfTheLimitThatIsTold)
{
    for (const bool least : {false, true}) {
        change(has["Win32_VideoController"], {{"MinRefreshRate", least ? Value(56) : Value()},
                                              {"MaxRefreshRate", least ? Value() : Value(75)}});
        open(9);
        EXPECT_EQ(F1.LT(4).ToolTipText,
                  Trad[least ? Text::MinimumRefreshRateHint : Text::MaximumRefreshRateHint]);
    }
}

TEST_F(Layout, WithoutAMediumTheNoticeStandsAloneOnThePage)
{
    const struct {
        int section;
        const char *disks, *notice, *request;
    } cases[] = {
        {11, "Win32_LogicalDisk where DriveType = 2", "None removable drive has been conected",
         "Couldn't detect any removable drive connected to the PC.\r\n"
         "Please, connect at least a removable drive."},
        {12, "Win32_LogicalDisk where DriveType = 5", "None CD/DVD has been inserted",
         "Couldn't find any CD/DVD in the drives.\r\nPlease, insert at least a CD/DVD."},
    };
    for (const auto& c : cases) {
        ResultSet slots;
        for (const Value& size : {Value(), Value("0"), c.section == 11 ? "none" : Value(-1)}) {
            ResultSet slot{has[c.disks].front()};
            change(slot, {{"Size", size}});
            slots.push_back(slot.front());
        }
        has[c.disks] = slots;
        F1.Line1.Visible = F1.Line2.Visible = true;
        open(c.section);
        EXPECT_THAT(shown(1, 12), ::testing::Each(""));
        EXPECT_EQ(seen_beside_the_rows(), " LNoDrive Iaviso Laviso");
        EXPECT_EQ(F1.LNoDrive.Caption, c.notice);
        EXPECT_EQ(F1.Laviso.Caption, c.request);
        EXPECT_EQ(F1.Laviso.ForeColor, rgb(75, 75, 75));
        EXPECT_EQ(F1.MediaCount, 0);
        EXPECT_EQ(script.asked.size(), 1U) << "nothing else is asked";
    }
    EXPECT_EQ(F1.EmptyDrives, 3);
}

} // namespace
} // namespace ostrelum
