#include "tests/Stage.h"

namespace ostrelum {
namespace {

class Copying : public Stage {
protected:
    Copying()
    {
        start_program();
        F1.Titulo.Caption = "Title";
        for (int row = 1; row <= 12; ++row) {
            F1.LT(row).Caption = std::to_string(row) + ": ";
            F1.L(row).Caption = "v";
        }
    }
    std::string copied_page(std::uint8_t section)
    {
        F1.Seccion = section;
        click("CopyAll");
        return clipboard.text.value_or("nothing");
    }
};

TEST_F(Copying, ARowIsTitleAndValueWithoutLineEnd)
{
    F1.CopyRow = 4;
    click("Copy");
    EXPECT_EQ(clipboard.text, "4: v");
    F1.CopyRow = 0;
    click("Copy");
    EXPECT_EQ(clipboard.text, std::nullopt) << "cleared all the same";
}

TEST_F(Copying, APageIsItsTitleAndItsRows)
{
    EXPECT_EQ(copied_page(8), "Title\r\n\r\n1: v\r\n2: v\r\n3: v\r\n4: v\r\n5: v\r\n");
    EXPECT_EQ(copied_page(10),
              "Title\r\n\r\n1: v\r\n2: v\r\n\r\n4: v\r\n5: v\r\n6: v\r\n7: v\r\n8: v\r\n");
    EXPECT_EQ(copied_page(1),
              "Title\r\n\r\n1: :\r\n\r\n3: v\r\n4: v\r\n5: v\r\n6: v\r\n\r\n8: :\r\n\r\n"
              "10: v\r\n11: v\r\n12: v\r\n");
}

TEST_F(Copying, AClipboardThatFailsIsPassedOver)
{
    clipboard.fails = true;
    click("CopyAll");
    F1.CopyRow = 1;
    click("Copy");
    EXPECT_EQ(clipboard.text, std::nullopt);
}

} // namespace
} // namespace ostrelum
