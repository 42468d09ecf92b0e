#include "tests/platform/toolkit/conformance/Conformance.h"

/// What each kind of control shows.
namespace ostrelum::conformance {
namespace {

TEST_P(Conformance, EveryKindOfControlShowsItsData)
{
    const FontSpec font{.Name = "Arial", .Size = 12, .Bold = true, .Italic = true};
    form.Menu(2).Visible = false;
    form.Free.AutoSize = false;
    form.Free.Width = 70;
    form.Free.Height = 20;
    form.Free.Caption = "a <b>device</b> & more";
    form.Free.ForeColor = rgb(1, 2, 3);
    form.Free.ToolTipText = "tip";
    form.Free.Alignment = Align::Right;
    form.Free.Left = 130;
    form.Rule = {.X1 = 180, .Y1 = 45, .X2 = 120, .Y2 = 45};
    form.Ok.Enabled = false;
    form.Slide = {
        .Left = 121, .Top = 51, .Width = 99, .Height = 18, .Min = 5, .Max = 30, .Value = 20};
    form.Tick.Value = 1;
    form.Tick.Font = font;
    form.Pick.List = {"x", "y"};
    form.Pick.ListIndex = -1;
    form.Bar.Visible = false;
    EXPECT_EQ(look(form.Free).text, "Free text") << "not before it is shown";
    toolkit.Refresh(form);

    const Look free = look(form.Free);
    EXPECT_EQ(free.text, "a <b>device</b> & more");
    EXPECT_EQ(free.area, (Area{130, 10, 70, 20}));
    EXPECT_EQ(free.colour, rgb(1, 2, 3));
    EXPECT_EQ(free.tooltip, "tip");
    EXPECT_EQ(free.alignment, Align::Right);
    EXPECT_EQ(look(form.Rule).area, (Area{120, 45, 60, 1}));
    EXPECT_TRUE(!look(form.Ok).enabled && look(form.No).enabled);
    const Look slide = look(form.Slide);
    EXPECT_EQ(slide.area, (Area{121, 51, 99, 18}));
    EXPECT_EQ(std::tuple(slide.min, slide.max, slide.value), std::tuple(5, 30, 20));
    EXPECT_EQ(look(form.Tick).value, 1);
    EXPECT_EQ(look(form.Tick).font, font);
    EXPECT_EQ(look(form.Pick).list, (std::vector<std::string>{"x", "y"}));
    EXPECT_EQ(look(form.Pick).value, -1);
    EXPECT_TRUE(!look(form.Menu(2)).visible && look(form.Menu(3)).visible);
    EXPECT_FALSE(look(form.Silent).visible) << "goes with the box that holds it";
    EXPECT_EQ(calls, Calls{}) << "what the program sets raises nothing";
}

TEST_P(Conformance, AScreenReaderReadsEachTextOnceAndWhichTabIsOpen)
{
    const auto spoken = [&](const auto& control) { return driver->spoken(form, place(control)); };
    form.Free.Continues = "Silent";
    form.Free.Caption = ": not";
    form.Menu(1).Caption = "";
    form.Menu(2).Role = form.Menu(3).Role = LabelRole::Tab;
    form.Menu(2).Chosen = true;
    form.Column.AccessibleName = "Pages";
    toolkit.Refresh(form);
    EXPECT_EQ(spoken(form.Silent), (Spoken{"Quiet: not"}));
    EXPECT_EQ(spoken(form.Free), Spoken{}) << "its text was read before";
    EXPECT_EQ(spoken(form.Menu(1)), Spoken{});
    EXPECT_EQ(spoken(form.Menu(2)), (Spoken{"Entry", true}));
    EXPECT_EQ(spoken(form.Menu(3)), (Spoken{"Entry"}));
    EXPECT_EQ(spoken(form.Column), (Spoken{"Pages"}));
    EXPECT_EQ(spoken(form.Tick), (Spoken{"Tick"}));
    form.Menu(3).Silent = true;
    form.Silent.Caption = "";
    toolkit.Refresh(form);
    EXPECT_EQ(spoken(form.Menu(3)), Spoken{});
    EXPECT_EQ(spoken(form.Free), (Spoken{": not"})) << "there is nothing to go on from";
}

TEST_P(Conformance, ALabelThatSizesItselfIsAsLargeAsItsText)
{
    const FontSpec font{.Name = "Arial", .Size = 9};
    EXPECT_EQ(toolkit.text_size("", font).width, 0);
    EXPECT_GT(toolkit.text_size("Text", font).height, 0);
    EXPECT_GT(toolkit.text_size("Longer text", font).width, toolkit.text_size("Text", font).width);
    for (const char* text : {"Text", "Text that is longer", "\xc3\xb1\xe2\x82\xac"}) {
        form.Free.Caption = text;
        toolkit.Refresh(form);
        const TextSize size = toolkit.text_size(text, form.Free.Font);
        EXPECT_EQ((TextSize{form.Free.Width, form.Free.Height}), size);
        EXPECT_EQ(look(form.Free).area, (Area{120, 10, size.width, size.height}));
    }
    form.Free.WordWrap = true;
    form.Free.Width = 50;
    form.Free.Height = 60;
    toolkit.Refresh(form);
    EXPECT_EQ(look(form.Free).area, (Area{120, 10, 50, 60}));
    EXPECT_TRUE(look(form.Free).wraps);
}

} // namespace
} // namespace ostrelum::conformance
