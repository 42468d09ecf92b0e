#include "tests/Stage.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using ::testing::ElementsAre;

class Lifecycle : public Stage {
protected:
    /// Ticks a fade's timer until it stops or the process ends; the levels that it went through.
    std::vector<int> levels_of_fade(std::string_view name, const Timer& timer)
    {
        std::vector<int> levels;
        for (int i = 0; timer.Enabled && i < 50; ++i) {
            try {
                tick(name);
            } catch (const ProcessEnded&) {
            }
            levels.push_back(Cnt);
        }
        return levels;
    }
};

TEST_F(Lifecycle, FirstRunWritesFiveDefaultsInOrderAndFadesInToOpaque)
{
    start_program();
    EXPECT_THAT(store.writes,
                ElementsAre(full_name("Language"), full_name("ColorValue"), full_name("ShineValue"),
                            full_name("ChkTrans"), full_name("Transparency")));
    EXPECT_THAT(levels_of_fade("TLoad", F1.TLoad),
                ElementsAre(91, 82, 73, 64, 55, 46, 37, 28, 19, 10, 1, -8));
    EXPECT_THAT(toolkit.alphas[&F1],
                ElementsAre(0, 22, 45, 68, 91, 114, 137, 160, 183, 206, 229, 252, 255, 255));
    EXPECT_EQ(toolkit.GetWindowLongA(F1, extended_style_index), layered_style);
}

TEST_F(Lifecycle, FadesRestAtTheTransparencyAndStartOverWhenClosedAgain)
{
    store_number("Transparency", 80);
    start_program();
    EXPECT_THAT(levels_of_fade("TLoad", F1.TLoad), ElementsAre(91, 82, 73));
    EXPECT_EQ(toolkit.alphas[&F1].back(), 51);
    F1.TLoad.Enabled = true;
    Cnt = 89;
    EXPECT_THAT(levels_of_fade("TLoad", F1.TLoad), ElementsAre(80)) << "from what a page left";

    EXPECT_FALSE(Unload(toolkit, F1));
    tick("TUnload");
    EXPECT_EQ(Cnt, 89);
    EXPECT_FALSE(Unload(toolkit, F1));
    EXPECT_THAT(levels_of_fade("TUnload", F1.TUnload), ElementsAre(89, 98, 107));
    EXPECT_TRUE(system_api.ended);
    EXPECT_THROW(WmiService->ExecQuery(""), Failure) << "it goes before what it stands on";
    EXPECT_EQ(toolkit.alphas[&F1].back(), 0);
    EXPECT_EQ(store.writes.size(), 4U) << "nothing is saved at the end";
}

TEST_F(Lifecycle, WithoutTransparencyTheWindowIsNeverLayeredAndEndsAtOnce)
{
    store_number("ChkTrans", 0);
    start_program();
    EXPECT_TRUE(toolkit.alphas[&F1].empty());
    EXPECT_FALSE(F1.TLoad.Enabled);
    EXPECT_THROW(click("Quit"), ProcessEnded);
    EXPECT_TRUE(toolkit.ended && system_api.ended);
}

TEST_F(Lifecycle, WithoutServiceAndShellTheWindowOpensWithDefaultsInMemory)
{
    service_gone = shell_gone = true;
    start_program();
    press("LMenu", 8);
    EXPECT_EQ(F1.L(1).Caption, "Unknown");
    EXPECT_EQ(Idioma, "English");
    EXPECT_EQ(ColorValue, 16750080);
    EXPECT_EQ(Shine, 24);
    EXPECT_EQ(F1.Titulo.Font.Name, "Arial");
    EXPECT_EQ(toolkit.shown, std::vector<Form*>{&F1});
}

TEST_F(Lifecycle, StartFillsMenuSkinAndFirstPageBeforeTheWindowShows)
{
    store_text("Language", "  Dutch ");
    start_program();
    EXPECT_EQ(stored("Language"), "  Dutch ") << "the store keeps its blanks";
    EXPECT_EQ(F1.LMenu(2).Caption, "Gebruikersaccount");
    EXPECT_EQ(F1.Titulo.ForeColor, rgb(0, 84, 189));
    EXPECT_EQ(F1.Seccion, 1);
    EXPECT_TRUE(F6.created());
    EXPECT_EQ(F1.Ico.Stored, F6->Sec1.Stored);
    EXPECT_EQ(toolkit.cursors, (std::vector{MouseCursor::Hourglass, MouseCursor::Default}));
}

TEST_F(Lifecycle, PreferredFontsNeedBothFilesWithTheArchiveFlagAlone)
{
    const struct {
        int text, light;
        bool preferred;
    } cases[] = {{32, 32, true}, {32, 33, false}, {34, 32, false}, {32, -1, false}};
    for (const auto& c : cases) {
        store.folders["Fonts"] = "F";
        system_api.attributes = {{"F\\segoeui.ttf", c.text}, {"F\\segoeuil.ttf", c.light}};
        if (c.light < 0)
            system_api.attributes.erase("F\\segoeuil.ttf");
        start_program();
        EXPECT_EQ(FontsOk, c.preferred ? preferred_fonts : 0) << c.text << " " << c.light;
        const std::string family = c.preferred ? "Segoe UI" : "Arial";
        EXPECT_EQ(F1.Titulo.Top, c.preferred ? 48 : 58);
        EXPECT_EQ(F1.Titulo.Font,
                  (c.preferred ? FontSpec{.Name = "Segoe UI Light", .Size = 26.25}
                               : FontSpec{.Name = "Arial", .Size = 20, .Italic = true}));
        EXPECT_EQ(F1.LT(12).Font, (FontSpec{.Name = family, .Size = 9.75, .Bold = true}));
        EXPECT_EQ(F1.L(12).Font, (FontSpec{.Name = family, .Size = 9.75, .Italic = true}));
    }
}

} // namespace
} // namespace ostrelum
