#include "tests/Stage.h"
#include "tests/sections/PageRows.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* Query = "Select Manufacturer, Model, SystemType, AutomaticResetBootOption, "
                              "SystemStartupDelay, Domain from Win32_ComputerSystem";

class SecComputerPage : public Stage {
protected:
    SecComputerPage() { start_program(); }

    void open(const Value& restart, const Value& delay, const Value& domain)
    {
        script.results[Query] = {Instance({{"AutomaticResetBootOption", restart},
                                           {"Domain", domain},
                                           {"Manufacturer", " Maker "},
                                           {"Model", {}},
                                           {"SystemStartupDelay", delay},
                                           {"SystemType", "x64-based PC"}})};
        press("LMenu", 3);
    }
};

TEST_F(SecComputerPage, ShowsTheComputer)
{
    leave_another_page();
    F1.Line1.Visible = F1.Iaviso.Visible = true;
    open(true, 30, "WORKGROUP");
    EXPECT_EQ(F1.Titulo.Caption, "Computer");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Manufacturer: Maker", "Model: Unknown", "Type: x64-based PC",
                            "Auto restart option: On", "OS startup delay: 30 second/s",
                            "Workgroup: Workgroup", "", "", "", "", "", ""));
    EXPECT_EQ(F1.LT(2).ToolTipText, "old title");
    EXPECT_EQ(F1.LT(3).ToolTipText, "");
    EXPECT_EQ(F1.LT(4).ToolTipText, "In case of an error, the system will reboot.");
    EXPECT_EQ(F1.LT(5).ToolTipText, "Timeout list of operating systems before loading.");
    EXPECT_FALSE(F1.Line1.Visible || F1.Iaviso.Visible || F1.LT(1).Font.Italic);
}

TEST_F(SecComputerPage, TellsOptionDelayAndDomain)
{
    const struct {
        Value restart, delay, domain;
        const char *restart_text, *delay_text, *domain_text;
    } cases[] = {{false, 0, "MyDomain.LOCAL", "Off", "0 second/s", "Mydomain.local"},
                 {"true", {}, "x", "Unknown", "Unknown", "X"},
                 {1, " ", {}, "Unknown", "Unknown", "Unknown"}};
    for (const auto& c : cases) {
        open(c.restart, c.delay, c.domain);
        EXPECT_EQ(F1.L(4).Caption, c.restart_text);
        EXPECT_EQ(F1.L(5).Caption, c.delay_text);
        EXPECT_EQ(F1.L(6).Caption, c.domain_text);
    }
}

TEST_F(SecComputerPage, WithoutTheServiceAllIsUnknown)
{
    press("LMenu", 3);
    for (int row = 1; row <= 6; ++row)
        EXPECT_EQ(F1.L(row).Caption, "Unknown") << row;
    EXPECT_NE(F1.LT(4).ToolTipText, "");
}

} // namespace
} // namespace ostrelum
