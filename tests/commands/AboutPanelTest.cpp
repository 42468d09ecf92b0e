#include "tests/Stage.h"

namespace ostrelum {
namespace {

class AboutPanelOpen : public Stage {
protected:
    void open(const std::string& language)
    {
        store_text("Language", language);
        start_program();
        press("LMenu", 4);
        store.writes.clear();
        click("Informacion");
    }
};

TEST_F(AboutPanelOpen, TellsOfTheProgramInTheRunsLanguageAndOfTheDutchTranslator)
{
    open("Spanish");
    EXPECT_EQ(F1.Titulo.Caption + F1.LTInfo1.Caption, "Acerca de...Versión: ");
    EXPECT_EQ(F1.LTra1.Caption, " - Robin Terhaar: Nederlands (Nederland) - ");
    EXPECT_EQ(F1.LTra2.Left, F1.LTra1.Left + F1.LTra1.Width);
    EXPECT_EQ(F1.LTra2.Caption, "Sitio web");
    EXPECT_EQ(Trad[Text::About], "Acerca de...") << "the Dutch table was only borrowed";
}

TEST_F(AboutPanelOpen, LocksTheNavigationAndEndsInThePageItCoveredWithoutWriting)
{
    open("English");
    EXPECT_EQ(F1.Seccion, AboutPanel);
    EXPECT_FALSE(F1.PanelReady || F1.Timer1.Enabled);
    press("LMenu", 8);
    EXPECT_TRUE(F1.PicInformacion.Visible && F1.BAceptar.Visible);
    toolkit.advance(F1, 20 * frame_time);
    EXPECT_EQ(F1.Ico.Stored, F6->IAC.Stored);
    click("BAceptar");
    EXPECT_FALSE(F1.PicInformacion.Visible || F1.BAceptar.Visible || F1.PanelOpen);
    EXPECT_EQ(F1.Seccion, 4);
    EXPECT_TRUE(store.writes.empty());
}

TEST_F(AboutPanelOpen, TheLinkLightsUpAndOpensByTheLeftButtonAlone)
{
    open("English");
    for (const char* way_back : {"PicInformacion", "LTra1"}) {
        F1.raise("LTra2", {.kind = EventKind::MouseMove});
        EXPECT_EQ(F1.LTra2.ForeColor, rgb(0, 80, 210));
        EXPECT_TRUE(F1.LTra2.Font.Underline);
        F1.raise(way_back, {.kind = EventKind::MouseMove});
        EXPECT_EQ(F1.LTra2.ForeColor, rgb(32, 32, 32)) << way_back;
        EXPECT_FALSE(F1.LTra2.Font.Underline) << way_back;
    }
    press("LTra2", 0, right_button);
    press("LTra2", 0, middle_button);
    EXPECT_TRUE(browser.opened.empty());
    press("LTra2");
    click("VisitWeb");
    EXPECT_EQ(browser.opened, (std::vector<std::string>{"https://terhaar.example.org",
                                                        "https://dervalin.example.org/ostrelum"}));
}

} // namespace
} // namespace ostrelum
