#include "tests/Stage.h"

#include "skin/Skin.h"

namespace ostrelum {
namespace {

class CustomisePanelOpen : public Stage {
protected:
    /// Opens the panel over the given section.
    void open(int section = 3)
    {
        start_program();
        press("LMenu", section);
        store.writes.clear();
        click("Personalizar");
    }
    /// The user moves a slider.
    static void slide(ScrollBar& bar, int value, EventKind kind = EventKind::Scroll)
    {
        bar.Value = value;
        F1.raise(F1.entry_of(&bar), {.kind = kind});
    }
    std::vector<std::string> written()
    {
        std::vector<std::string> names;
        for (const std::string& name : store.writes)
            names.push_back(name.substr(name.rfind('\\') + 1));
        store.writes.clear();
        return names;
    }
};

using Names = std::vector<std::string>;

TEST_F(CustomisePanelOpen, ShowsTheSettingsOfTheRunAndTouchesNeitherSkinNorStore)
{
    store_text("Language", "Dutch");
    store_number("ColorValue", 255);
    store_number("ShineValue", 5);
    store_number("SCV", 210);
    store_number("ChkTrans", 0);
    store_number("Transparency", 30);
    start_program();
    press("LMenu", 6);
    store.writes.clear();
    const Picture skin = F1.S(1).Surface;
    click("Personalizar");

    EXPECT_EQ(F1.LangList.List, (Names{"English (UK, Great Britain)", "Español (Argentina)",
                                       "Nederlands (Nederland)"}));
    EXPECT_EQ(F1.LangList.ListIndex, 2);
    EXPECT_EQ(F1.Scroll1.Value, 210);
    EXPECT_EQ(F1.Arrow.Left, 17 - 4 + 210);
    EXPECT_EQ(F1.Scroll2.Value, 4) << "5 halves to 2, the even neighbour";
    EXPECT_EQ(F1.CheckTrans.Value, 0);
    EXPECT_FALSE(F1.Scroll3.Enabled);
    EXPECT_EQ(F1.LPers3.ForeColor, rgb(96, 96, 96));
    EXPECT_EQ(F1.LPers3.Caption, "30 %");
    EXPECT_EQ(F1.S(1).Surface, skin);

    click("BAceptar");
    EXPECT_EQ(written(), Names{}) << "nothing differs";
    EXPECT_EQ(F1.Seccion, 6);
    EXPECT_TRUE(F1.LineInf.Visible && F1.LMenu(1).TabStop);
    EXPECT_EQ(F1.LMenu(13).ForeColor, white);
    EXPECT_EQ(F1.LOpc.ForeColor, rgb(250, 250, 250));
    EXPECT_EQ(F1.MenuLogo.MousePointer, MouseCursor::Hand);
    click("Personalizar");
    EXPECT_EQ(F1.LangList.List.size(), 3U);
}

TEST_F(CustomisePanelOpen, SlidersActAtOnceAndTheArrowFollows)
{
    const std::pair<int, std::int32_t> colours[] = {
        {0, 0x0000FF},   {1, 0x0004FF},   {34, 0x00FBFF},  {35, 0x00FFFF},
        {36, 0x00FFFB},  {70, 0x00FF00},  {104, 0xFBFF00}, {105, 0xFFFF00},
        {122, 0xFF8400}, {140, 0xFF0000}, {175, 0xFF00FF}, {210, 0x0000FF}};
    open();
    for (const auto& [column, colour] : colours) {
        const Picture before = F1.BM.Surface;
        slide(F1.Scroll1, column);
        EXPECT_EQ(ColorValue, colour) << column;
        EXPECT_EQ(F1.Arrow.Left, 13 + column);
        EXPECT_EQ(F1.Titulo.ForeColor, rgb(SkinR, SkinG, SkinB));
        EXPECT_NE(F1.BM.Surface, before);
    }
    const std::pair<int, int> shines[] = {{47, 24}, {7, 4}, {5, 2}, {1, 0}, {48, 24}};
    for (const auto& [position, shine] : shines) {
        slide(F1.Scroll2, position, EventKind::Change);
        EXPECT_EQ(Shine, shine) << position;
    }
    slide(F1.Scroll3, 80);
    EXPECT_EQ(F1.LPers3.Caption, "80 %");
    EXPECT_EQ(toolkit.alphas[&F1].back(), 51);
    EXPECT_EQ(written(), Names{"SCV"}) << "a first opening stores the slider's place alone";
}

TEST_F(CustomisePanelOpen, PendingEventsOfAStepLeaveTheNewestColour)
{
    open();
    toolkit.pending = [] { slide(F1.Scroll1, 70); };
    slide(F1.Scroll1, 35);
    EXPECT_EQ(ColorValue, 0x00FF00);
    const Picture newest = F1.S(2).Surface;
    Tint(F1.S(2));
    EXPECT_TRUE(F1.S(2).Surface.bitmap() == newest.bitmap());
    EXPECT_EQ(F1.Arrow.Left, 13 + 70);
}

TEST_F(CustomisePanelOpen, TheBoxSwitchesOpacityAndKeepsThePercent)
{
    store_number("Transparency", 20);
    open();
    set_value(F1, F1.CheckTrans, 0);
    EXPECT_EQ(toolkit.alphas[&F1].back(), 255);
    EXPECT_FALSE(TransEnabled || F1.Scroll3.Enabled);
    EXPECT_EQ(F1.Scroll3.Value, 20);
    set_value(F1, F1.CheckTrans, 1);
    EXPECT_EQ(toolkit.alphas[&F1].back(), 204);
    EXPECT_TRUE(TransEnabled && F1.Scroll3.Enabled);
    EXPECT_EQ(F1.LPers3.ForeColor, rgb(32, 32, 32));
}

TEST_F(CustomisePanelOpen, AcceptWritesWhatDiffersInOrder)
{
    const struct {
        std::function<void()> user;
        Names names;
    } cases[] = {
        {[] {}, {}},
        {[] { choose(F1, F1.LangList, 1), choose(F1, F1.LangList, 0); }, {}},
        {[] { slide(F1.Scroll1, 0); }, {"ColorValue", "SCV"}},
        {[] { slide(F1.Scroll1, 0), slide(F1.Scroll1, 120); }, {}},
        {[] { slide(F1.Scroll2, 47); }, {}},
        {[] { slide(F1.Scroll2, 10); }, {"ShineValue"}},
        {[] { set_value(F1, F1.CheckTrans, 0); }, {"ChkTrans"}},
        {[] {
             slide(F1.Scroll3, 10), set_value(F1, F1.CheckTrans, 0), slide(F1.Scroll2, 0),
                 slide(F1.Scroll1, 210), choose(F1, F1.LangList, 2);
         },
         {"Language", "ColorValue", "SCV", "ShineValue", "ChkTrans", "Transparency"}},
    };
    for (const auto& c : cases) {
        store.values.clear();
        open();
        written();
        c.user();
        EXPECT_EQ(written(), Names{}) << "nothing is stored before Accept";
        click("BAceptar");
        EXPECT_EQ(written(), c.names);
    }
    EXPECT_EQ(stored("Language") + stored("ColorValue") + stored("SCV"), "Dutch255210");
    EXPECT_EQ(F1.Titulo.Caption, Trad[Text::Computer])
        << "the page comes up in the language chosen";
}

TEST_F(CustomisePanelOpen, AStoreThatCannotBeWrittenChangesNothingElse)
{
    store_number("SCV", 211);
    open();
    EXPECT_EQ(F1.Scroll1.Value, 122);
    EXPECT_EQ(written(), Names{"SCV"});
    EXPECT_EQ(ColorValue, 16750080) << "the skin keeps its colour";
    store.read_only = true;
    slide(F1.Scroll1, 35);
    click("BAceptar");
    EXPECT_EQ(ColorValue, 0x00FFFF);
    EXPECT_EQ(F1.Seccion, 3);
    EXPECT_FALSE(F1.PanelOpen);
}

TEST_F(CustomisePanelOpen, LocksWhatLiesAroundItUntilItCloses)
{
    start_program();
    press("LMenu", 3);
    F1.LT(3).ToolTipText = "told";
    F1.Iaviso.Visible = F1.Line1.Visible = true;
    store.writes.clear();
    click("Personalizar");
    press("LMenu", 8);
    press("S", 1, left_button, 20, 300);
    click("BM");
    press("Form", 0, right_button);
    press("LT", 3, right_button);
    F1.raise("LOpc", {.kind = EventKind::MouseUp, .button = left_button});
    F1.raise("S", {.kind = EventKind::MouseMove, .index = 1, .x = 10, .y = 60});
    EXPECT_EQ(F1.Seccion, CustomisePanel);
    EXPECT_TRUE(toolkit.popups.empty());
    EXPECT_FALSE(F1.LMenu(8).TabStop || F1.LOpc.TabStop);
    EXPECT_TRUE(F1.LMenu(13).ForeColor == rgb(215, 215, 215) &&
                F1.LOpc.ForeColor == F1.LMenu(13).ForeColor);
    EXPECT_TRUE(F1.BM.MousePointer == MouseCursor::Arrow &&
                F1.S(1).MousePointer == MouseCursor::Arrow);
    EXPECT_EQ(F1.LT(3).Caption + F1.L(3).Caption + F1.LT(3).ToolTipText + F1.L(3).ToolTipText, "");
    EXPECT_FALSE(F1.Iaviso.Visible || F1.Line1.Visible || F1.LineInf.Visible);
    EXPECT_EQ(F1.Labelmi.Caption, "");

    choose(F1, F1.LangList, 1);
    EXPECT_EQ(F1.LMenu(2).Caption + F1.LMenu2.Caption, "UsuarioComputadora");
    EXPECT_EQ(F1.Titulo.Caption, Trad[Text::Customize]);
    EXPECT_EQ(F1.CopyAll.Caption, "Copiar todo");
    EXPECT_EQ(F1.LT(1).Caption, "") << "the page stays empty";
}

} // namespace
} // namespace ostrelum
