#include "tests/Stage.h"
#include "tests/sections/PageRows.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

constexpr const char* Keyboards = "Select Name, Description from Win32_Keyboard";
constexpr const char* Pointers =
    "Select Name, Manufacturer, DeviceInterface, Handedness from Win32_PointingDevice";

Instance keyboard(const char* name, const Value& kind)
{
    return Instance({{"Description", kind}, {"Name", name}});
}

Instance pointer(const char* name, const Value& connexion, const Value& hand)
{
    return Instance({{"DeviceInterface", connexion},
                     {"Handedness", hand},
                     {"Manufacturer", {}},
                     {"Name", name}});
}

class SecInputPage : public Stage {
protected:
    SecInputPage() { start_program(); }

    void open(const ResultSet& keyboards, const ResultSet& pointers, int buttons)
    {
        leave_another_page();
        machine.metrics[SM_CMOUSEBUTTONS] = buttons;
        script.results = {{Keyboards, keyboards}, {Pointers, pointers}};
        press("LMenu", 10);
    }
};

TEST_F(SecInputPage, ShowsTheFirstOfEachAndTheSystemsButtons)
{
    F1.Line2.Visible = true;
    open({keyboard(" Keys ", "101 keys"), keyboard("Second", "")},
         {pointer("Mouse", 162, 2), pointer("Pad", 4, 3)}, 3);
    EXPECT_EQ(F1.Titulo.Caption, "Keyboard and mouse");
    EXPECT_THAT(shown(1, 12),
                ElementsAre("Keyboard name: Keys", "Type: 101 keys", "", "Mouse name: Mouse",
                            "Manufacturer: Unknown", "Number of buttons: 3", "Connexion: USB",
                            "Current use: Right-handed", "", "", "", ""));
    EXPECT_EQ(rows_with_title_tooltips(), 0b1111111000110);
    EXPECT_TRUE(F1.Line1.Visible);
    EXPECT_EQ(F1.Line1.Y1, F1.LT(3).Top + 9);
    EXPECT_EQ(F1.Line1.Y2, F1.Line1.Y1);
    EXPECT_FALSE(F1.Line2.Visible || F1.LT(1).Font.Italic || F1.LT(8).Font.Italic);
}

TEST_F(SecInputPage, CodesBecomeWordsOfTheLanguage)
{
    const struct {
        Value connexion, hand;
        const char *connexion_word, *hand_word;
    } cases[] = {
        {3, 1, "Seriële poort", "N.v.t."},  {4, 2, "PS/2", "Rechtshandig"},
        {5, 3, "Infrarood", "Linkshandig"}, {2, 0, "Onbekend", "Onbekend"},
        {160, 4, "Onbekend", "Onbekend"},   {{}, {}, "Onbekend", "Onbekend"},
        {"162 ", "03", "USB", "Onbekend"},
    };
    LangDutch();
    for (const auto& c : cases) {
        open({}, {pointer("Mouse", c.connexion, c.hand)}, 2);
        EXPECT_EQ(F1.L(7).Caption, c.connexion_word);
        EXPECT_EQ(F1.L(8).Caption, c.hand_word);
    }
}

TEST_F(SecInputPage, OneButtonAndNoMouseAreUnknown)
{
    const struct {
        int buttons;
        const char* shown;
    } cases[] = {{0, "Unknown"}, {1, "Unknown"}, {2, "2"}, {16, "16"}};
    for (const auto& c : cases) {
        open({}, {}, c.buttons);
        EXPECT_EQ(F1.L(6).Caption, c.shown) << c.buttons;
    }
    for (const int row : {1, 2, 4, 5, 7, 8})
        EXPECT_EQ(F1.L(row).Caption, "Unknown") << row;
}

} // namespace
} // namespace ostrelum
