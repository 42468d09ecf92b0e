#include "platform/toolkit/Reading.h"
#include "tests/Stage.h"

namespace ostrelum {
namespace {

class Navigation : public Stage {
protected:
    Navigation() { start_program(); }

    /// Moves over a picture of the skin, and presses and lets go the button there.
    void click_skin(int picture, int button, int x, int y)
    {
        for (const EventKind kind :
             {EventKind::MouseMove, EventKind::MouseDown, EventKind::MouseUp})
            F1.raise("S", {.kind = kind, .index = picture, .button = button, .x = x, .y = y});
    }
};

TEST_F(Navigation, TheColumnIsOneTargetByItsTabAndItsRows)
{
    constexpr int nothing = 0, menu = 14;
    const struct {
        int x, y, opens;
    } cases[] = {{0, 0, menu},     {134, 30, menu},    {135, 30, nothing}, {134, 31, nothing},
                 {9, 48, nothing}, {150, -1, nothing}, {160, 49, 1},       {5, 83, 1},
                 {150, 84, 2},     {5, 503, 13},       {5, 504, nothing},  {5, 552, nothing}};
    for (const auto& c : cases) {
        F1.Seccion = nothing;
        toolkit.popups.clear();
        click_skin(1, right_button, c.x, c.y);
        click_skin(2, left_button, c.x, c.y);
        EXPECT_TRUE(F1.Seccion == nothing && toolkit.popups.empty()) << c.x << "," << c.y;
        click_skin(1, left_button, c.x, c.y);
        EXPECT_EQ(F1.Seccion, c.opens == menu ? nothing : c.opens) << c.x << "," << c.y;
        EXPECT_EQ(toolkit.popups.size(), c.opens == menu ? 1U : 0U) << c.x << "," << c.y;
        EXPECT_EQ(F1.S(1).MousePointer,
                  c.opens == nothing ? MouseCursor::Arrow : MouseCursor::Hand);
    }
}

TEST_F(Navigation, WordAndLogoPopUpTheOptionsToo)
{
    for (const char* control : {"LOpc", "MenuLogo"}) {
        for (const int button : {right_button, left_button})
            F1.raise(control, {.kind = EventKind::MouseUp, .button = button});
        ASSERT_EQ(toolkit.popups.size(), 1U) << control;
        EXPECT_EQ(toolkit.popups[0].menu, &F1.MenuOps);
        EXPECT_EQ(toolkit.popups[0].at, (Point{25, 14}));
        EXPECT_EQ(toolkit.popups[0].bold, &F1.Quit);
        toolkit.popups.clear();
    }
}

TEST_F(Navigation, KeysOpenTheOptionsCollectAnewAndEnd)
{
    const auto window = toolkit.window_of(F1);
    F1.L(1).Caption = "old";
    window->press_key(Key::F5);
    EXPECT_NE(F1.L(1).Caption, "old");
    EXPECT_EQ(toolkit.announced.back(), "Summary. Done");
    window->press_key(Key::F10);
    EXPECT_EQ(toolkit.popups.back().menu, &F1.MenuOps);
    click("Personalizar");
    toolkit.Refresh(F1);
    EXPECT_EQ(window->focused(), place_of(F1, F1.entry_of(&F1.LangList)));
    for (const Key key : {Key::F5, Key::F10, Key::C})
        window->press_key(key, key == Key::C ? control_key : 0);
    EXPECT_TRUE(F1.PanelOpen && toolkit.popups.size() == 1U && !clipboard.text)
        << "an open panel locks them";
    window->press_key(Key::Q, control_key);
    EXPECT_TRUE(F1.TUnload.Enabled) << "the window fades out";
}

TEST_F(Navigation, NoValueReachesTheBands)
{
    const ControlEntry* value = F1.find("L", 12);
    F1.L(12).Caption = std::string(200, 'w');
    toolkit.Refresh(F1);
    const Area marked = area_of_reading(F1, place_of(F1, *F1.find("LT", 12)));
    EXPECT_EQ(marked.left, F1.LT(12).Left);
    EXPECT_EQ(marked.left + marked.width, F1.TapaBorde.Left)
        << "round the value, as far as it shows";
    for (const ControlEntry* over : {F1.find("TapaBorde"), F1.find("S", 4), F1.find("BAceptar")})
        EXPECT_GT(over, value) << over->name << " lies over the rows";
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
        press("TapaBorde", 0, right_button);
        press("Form", 0, left_button);
        EXPECT_EQ(toolkit.popups.size(), c.menu ? 1U : 0U) << int{c.section};
        EXPECT_EQ(F1.Copy.Enabled, !c.menu);
        toolkit.popups.clear();
        press("L", 4, right_button);
        EXPECT_EQ(toolkit.popups.size(), c.section < 90 ? 1U : 0U) << int{c.section};
    }
}

} // namespace
} // namespace ostrelum
