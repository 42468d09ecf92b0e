#include "tests/Stage.h"

namespace ostrelum {
namespace {

constexpr const char* Query =
    "Select Name, Manufacturer, SMBIOSBIOSVersion, ReleaseDate, SerialNumber from Win32_BIOS";

Instance firmware(const Value& name, const Value& date, const Value& serial)
{
    return Instance({{"Manufacturer", "  Maker Inc. "},
                     {"Name", name},
                     {"ReleaseDate", date},
                     {"SerialNumber", serial},
                     {"SMBIOSBIOSVersion", "1.2"}});
}

class SecBIOSPage : public Stage {
protected:
    SecBIOSPage() { start_program(); }
};

TEST_F(SecBIOSPage, ShowsTheFirstInstance)
{
    script.results[Query] = {firmware("Boot 7", "20120315000000.000000+000", "   "),
                             firmware("Second", "20130101000000.000000+000", "2")};
    F1.LT(1).Font.Italic = true;
    F1.LT(4).ToolTipText = "from another page";
    F1.L(7).Caption = F1.L(7).ToolTipText = "from another page";
    press("LMenu", 8);
    EXPECT_EQ(F1.Titulo.Caption, "Bios");
    EXPECT_EQ(F1.LT(1).Caption + F1.L(1).Caption, "Name: Boot 7");
    EXPECT_EQ(F1.LT(2).Caption + F1.L(2).Caption, "Manufacturer: Maker Inc.");
    EXPECT_EQ(F1.LT(3).Caption + F1.L(3).Caption, "Version: 1.2");
    EXPECT_EQ(F1.LT(4).Caption + F1.L(4).Caption, "Released: 15/03/2012");
    EXPECT_EQ(F1.LT(5).Caption + F1.L(5).Caption, "Serial number: Unknown");
    EXPECT_EQ(F1.L(5).ToolTipText, "Unknown");
    EXPECT_EQ(F1.LT(4).ToolTipText, "");
    EXPECT_FALSE(F1.LT(1).Font.Italic);
    EXPECT_EQ(F1.L(7).Caption + F1.L(7).ToolTipText, "");
}

TEST_F(SecBIOSPage, NullsAndAMissingServiceAreUnknown)
{
    script.results[Query] = {firmware({}, {}, {})};
    press("LMenu", 8);
    EXPECT_EQ(F1.L(1).Caption, "Unknown");
    EXPECT_EQ(F1.L(2).Caption, "Maker Inc.");
    EXPECT_EQ(F1.L(4).Caption, "Unknown");
    script.results.clear();
    press("LMenu", 8);
    for (int row = 1; row <= 5; ++row)
        EXPECT_EQ(F1.L(row).Caption, "Unknown") << row;
}

TEST_F(SecBIOSPage, ADateThatIsNoneKeepsTheCaptionBefore)
{
    F1.L(4).Caption = "kept";
    script.results[Query] = {firmware("n", "20120231000000", "s")};
    press("LMenu", 8);
    EXPECT_EQ(F1.L(4).Caption, "kept");
    EXPECT_EQ(F1.L(4).ToolTipText, "kept");
    EXPECT_EQ(F1.L(5).Caption, "s") << "the rows behind it go on";
}

} // namespace
} // namespace ostrelum
