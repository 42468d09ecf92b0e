#include "tests/platform/toolkit/conformance/SampleForm.h"

#include "platform/toolkit/Designer.h"

#include <sstream>

namespace ostrelum::conformance {
namespace {

/// Acts go by the bare name.
void note(const std::string& name, int index = 0, const std::string& tail = "")
{
    calls.push_back(name + (index ? "(" + std::to_string(index) + ")" : "") + tail);
    if (const auto act = acts.find(name); act != acts.end())
        act->second();
}

void note_mouse(const std::string& name, int index, int button, int shift, int x, int y)
{
    std::ostringstream tail;
    tail << " " << button << " " << shift << " " << x << "," << y;
    note(name, index, tail.str());
}

// clang-format off
// One handler, one line; one control, one line.
#define PLAIN(name) void name() { note(#name); }
#define MOUSE(name) void name(int b, int s, int x, int y) { note_mouse(#name, 0, b, s, x, y); }
#define INDEXED_MOUSE(name) void name(int i, int b, int s, int x, int y) { note_mouse(#name, i, b, s, x, y); }
MOUSE(Column_MouseDown) MOUSE(Column_MouseMove) PLAIN(Column_Click)
INDEXED_MOUSE(Menu_MouseDown) INDEXED_MOUSE(Menu_MouseUp)
void Menu_Click(int index) { note("Menu_Click", index); }
void Row_KeyDown(int index, Key key, int shift) { note("Row_KeyDown", index, key == Key::C && shift == control_key ? " C" : " other"); }
void Form_KeyDown(Key key, int shift) { note("Form_KeyDown", 0, key == Key::F5 && shift == 0 ? " F5" : key == Key::F10 ? " F10" : " other"); }
PLAIN(Bar_Click) PLAIN(Ok_Click) PLAIN(No_Click) PLAIN(Slide_Scroll) PLAIN(Slide_Change)
PLAIN(Tick_Click) PLAIN(Pick_Click) PLAIN(First_Click) PLAIN(Last_Click) PLAIN(Clock_Timer)
MOUSE(Form_MouseDown)
void Form_Unload(bool& cancel) { note("Form_Unload"); cancel = acts.contains("refuse"); }

constexpr Handler sample_handlers[] = {
    OSTRELUM_ON(Column_MouseDown), OSTRELUM_ON(Column_MouseMove), OSTRELUM_ON(Column_Click),
    OSTRELUM_ON(Menu_MouseDown), OSTRELUM_ON(Menu_MouseUp), OSTRELUM_ON(Menu_Click),
    OSTRELUM_ON(Row_KeyDown), OSTRELUM_ON(Form_KeyDown), OSTRELUM_ON(Bar_Click), OSTRELUM_ON(Ok_Click), OSTRELUM_ON(No_Click),
    OSTRELUM_ON(Slide_Scroll), OSTRELUM_ON(Slide_Change), OSTRELUM_ON(Tick_Click),
    OSTRELUM_ON(Pick_Click), OSTRELUM_ON(First_Click), OSTRELUM_ON(Last_Click),
    OSTRELUM_ON(Clock_Timer), OSTRELUM_ON(Form_MouseDown), OSTRELUM_ON(Form_Unload)};

void design(SampleForm& form)
{
    Designer put(form);
    put.place("Row", form.Row, [](int i) { return Label{.Left = 120, .Top = 176 + 8 * (i - 1), .Width = 80, .Height = 8, .AutoSize = false, .TabStop = true, .Role = LabelRole::Row}; });
    put.place("Column", form.Column, {.Width = 100, .Height = 200, .Stored = Picture(plain_bitmap(100, 200, rgb(40, 40, 40), rgb(250, 120, 0)))});
    put.inside(form.Column);
    put.place("Menu", form.Menu, [](int i) { return Label{.Caption = "Entry", .Left = 10, .Top = 10 + 40 * (i - 1), .Width = 60, .Height = 20, .ForeColor = white, .AutoSize = false, .MousePointer = MouseCursor::Hand, .TabStop = true}; });
    put.place("Bar", form.Bar, {.Top = 45, .Width = 100, .Height = 30});
    put.inside(form.Bar);
    put.place("Silent", form.Silent, {.Caption = "Quiet", .Left = 5, .Top = 5, .Width = 50, .Height = 20, .AutoSize = false});
    put.on_the_form();
    put.place("Free", form.Free, {.Caption = "Free text", .Left = 120, .Top = 10});
    put.place("Rule", form.Rule, {.X1 = 120, .Y1 = 40, .X2 = 180, .Y2 = 40, .BorderColor = rgb(200, 0, 0)});
    put.place("Ok", form.Ok, {.Caption = "Fine", .Left = 120, .Top = 150, .Width = 80, .Height = 25, .Default = true});
    put.place("No", form.No, {.Caption = "Not", .Left = 210, .Top = 150, .Width = 80, .Height = 25, .Cancel = true});
    put.place("Slide", form.Slide, {.Left = 120, .Top = 50, .Width = 150, .Height = 17, .Max = 100, .LargeChange = 10, .Value = 50});
    put.place("Tick", form.Tick, {.Caption = "Tick", .Left = 120, .Top = 80, .Width = 80, .Height = 20});
    put.place("Pick", form.Pick, {.Left = 120, .Top = 110, .Width = 100, .Height = 24, .List = {"a", "b", "c"}, .ListIndex = 1});
    put.place("Pops", form.Pops, {});
    put.inside(form.Pops);
    put.place("First", form.First, {.Caption = "First", .Enabled = false});
    put.place("Gap", form.Gap, {.Caption = "-"});
    put.place("Last", form.Last, {.Caption = "Last", .Shortcut = "Ctrl+Q"});
    put.on_the_form();
    put.place("Clock", form.Clock, {});
}
// clang-format on

} // namespace

Bitmap plain_bitmap(int width, int height, Colour colour, Colour corner)
{
    Bitmap bitmap(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const Colour pixel = x == 0 && y == 0 ? corner : colour;
            std::uint8_t* bytes = bitmap.row(y) + 3 * x;
            bytes[0] = static_cast<std::uint8_t>(blue_of(pixel));
            bytes[1] = static_cast<std::uint8_t>(green_of(pixel));
            bytes[2] = static_cast<std::uint8_t>(red_of(pixel));
        }
    }
    return bitmap;
}

SampleForm::SampleForm()
{
    static const HandlerTable table = sample_handlers;
    Caption = "Sample";
    ClientWidth = 300;
    ClientHeight = 200;
    handlers = {table};
    design(*this);
}

} // namespace ostrelum::conformance
