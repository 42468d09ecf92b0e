#include "frame/MainForm.h"

#include "frame/F1Events.h"
#include "frame/Pictures.h"
#include "platform/toolkit/Designer.h"

namespace ostrelum::inline frame {
namespace {

constexpr Colour title_grey = rgb(32, 32, 32);
constexpr Colour value_grey = rgb(64, 64, 64);
constexpr Colour line_grey = rgb(200, 200, 200);

FontSpec tahoma(double size, bool bold = false)
{
    return {.Name = "Tahoma", .Size = size, .Bold = bold};
}

/// A row of the design: the name is the control's own.
#define ROW(name, ...) put.place(#name, F1.name, {__VA_ARGS__})
/// The same for a control array, with the look of control `i`.
#define ROWS(name, ...) put.place(#name, F1.name, [](int i) { return __VA_ARGS__; })

void place_bands(Designer& put)
{
    static constexpr struct {
        int left, top, width, height;
    } bands[] = {{0, 0, 170, 553}, {170, 0, 576, 31}, {170, 522, 576, 31}, {746, 0, 31, 553}};
    put.place("S", F1.S, [](int i) {
        const auto& band = bands[i - 1];
        return PictureBox{.Left = band.left,
                          .Top = band.top,
                          .Width = band.width,
                          .Height = band.height,
                          .Stored = art_picture("S" + std::to_string(i))};
    });
    static constexpr Point corners[] = {{170, 31}, {742, 31}, {742, 518}, {170, 518}};
    put.place("Corner", F1.Corner, [](int i) {
        return PictureBox{.Left = corners[i - 1].x,
                          .Top = corners[i - 1].y,
                          .Width = 4,
                          .Height = 4,
                          .Transparent = true,
                          .Stored = art_picture("Corner" + std::to_string(i))};
    });
}

// clang-format off: one row, one line.
void place_left_column(Designer& put)
{
    put.inside(F1.S(1));
    ROW(MenuLogo, .Left = 16, .Top = 5, .Width = 20, .Height = 20, .Transparent = true,
        .Stored = art_picture("MenuLogo"), .MousePointer = MouseCursor::Hand);
    ROW(LOpc, .Left = 47, .Top = 7, .Font = tahoma(9.75), .ForeColor = white,
        .MousePointer = MouseCursor::Hand, .TabStop = true);
    ROWS(LMenu, Label{.Left = 20,
                      .Top = 58 + 35 * (i - 1),
                      .Font = tahoma(9.75),
                      .ForeColor = white,
                      .MousePointer = MouseCursor::Hand,
                      .TabStop = true,
                      .Role = LabelRole::Tab});
    ROW(BM, .Left = 0, .Top = 49, .Width = 170, .Height = 35, .Stored = art_picture("BM"),
        .MousePointer = MouseCursor::Hand);
    put.inside(F1.BM);
    ROW(LMenu2, .Left = 20, .Top = 9, .Font = tahoma(9.75), .ForeColor = white,
        .MousePointer = MouseCursor::Hand, .Silent = true);
    ROW(PesBMenu, .Left = 163, .Top = 11, .Width = 7, .Height = 13, .Transparent = true,
        .Stored = art_picture("PesBMenu"));
    put.on_the_form();
}

void place_page(Designer& put)
{
    ROW(Titulo, .Left = 208, .Top = 48, .Font = {.Name = "Segoe UI Light", .Size = 26.25});
    ROW(LineTit, .X1 = 208, .Y1 = 112, .X2 = 488, .Y2 = 112, .BorderColor = line_grey);
    ROW(Ico, .Left = 676, .Top = 52, .Width = 48, .Height = 48);
    ROWS(LT, Label{.Left = 208,
                   .Top = 139 + 25 * (i - 1),
                   .Font = {.Name = "Segoe UI", .Size = 9.75, .Bold = true},
                   .ForeColor = title_grey,
                   .TabStop = true,
                   .Role = LabelRole::Row});
    ROWS(L, Label{.Left = 208,
                  .Top = 139 + 25 * (i - 1),
                  .Font = {.Name = "Segoe UI", .Size = 9.75, .Italic = true},
                  .ForeColor = value_grey,
                  .Continues = "LT"});
    ROW(Line1, .X1 = 208, .Y1 = 40, .X2 = 488, .Y2 = 40, .BorderColor = line_grey,
        .Visible = false);
    ROW(Line2, .X1 = 208, .Y1 = 48, .X2 = 488, .Y2 = 48, .BorderColor = line_grey,
        .Visible = false);
    ROW(LNoDrive, .Left = 250, .Top = 170, .Width = 420, .Height = 250,
        .Font = {.Name = "Segoe UI", .Size = 36, .Italic = true}, .ForeColor = rgb(192, 192, 192),
        .Alignment = Align::Centre, .AutoSize = false, .WordWrap = true, .Visible = false);
    ROW(Iaviso, .Left = 208, .Top = 432, .Width = 35, .Height = 35, .Visible = false);
    ROW(Laviso, .Left = 256, .Top = 435, .Width = 323, .Height = 29, .Font = tahoma(8.25),
        .AutoSize = false, .WordWrap = true, .Visible = false);
    ROW(LineInf, .X1 = 208, .Y1 = 480, .X2 = 488, .Y2 = 480, .BorderColor = line_grey);
    ROW(Labelmi, .Left = 208, .Top = 488, .Font = tahoma(8.25), .ForeColor = rgb(85, 85, 85));
    ROW(TapaBorde, .Left = 721, .Top = 128, .Width = 25, .Height = 313);
}

void place_customise_panel(Designer& put)
{
    ROW(PicPersonalizar, .Left = 208, .Top = 144, .Width = 494, .Height = 270, .Visible = false);
    put.inside(F1.PicPersonalizar);
    ROW(LTPers1, .Left = 0, .Top = 0, .Font = tahoma(8.25, true));
    ROW(LangList, .Left = 17, .Top = 32, .Width = 211, .Height = 24, .Font = tahoma(8.25));
    ROW(LTPers2, .Left = 0, .Top = 80, .Font = tahoma(8.25, true));
    ROW(LPers1, .Left = 17, .Top = 112, .Font = tahoma(8.25));
    ROW(Spectrum, .Left = 17, .Top = 136, .Width = 211, .Height = 11,
        .Stored = art_picture("Spectrum"));
    ROW(LineP1, .X1 = 16, .Y1 = 136, .X2 = 16, .Y2 = 147);
    ROW(LineP2, .X1 = 228, .Y1 = 136, .X2 = 228, .Y2 = 147);
    ROW(Arrow, .Left = 13, .Top = 152, .Width = 9, .Height = 5, .Stored = art_picture("Arrow"));
    ROW(Scroll1, .Left = 17, .Top = 170, .Width = 211, .Height = 17, .Max = 210, .LargeChange = 35);
    ROW(LPers2, .Left = 17, .Top = 208, .Font = tahoma(8.25));
    ROW(Scroll2, .Left = 17, .Top = 232, .Width = 211, .Height = 17, .Max = 48, .LargeChange = 10);
    ROW(LineP3, .X1 = 252, .Y1 = 24, .X2 = 252, .Y2 = 264, .BorderColor = line_grey);
    ROW(LTPers3, .Left = 264, .Top = 0, .Font = tahoma(8.25, true));
    ROW(CheckTrans, .Left = 276, .Top = 32, .Width = 153, .Height = 25, .Font = tahoma(8.25));
    ROW(Scroll3, .Left = 276, .Top = 75, .Width = 176, .Height = 17, .Max = 80, .LargeChange = 20);
    ROW(LPers3, .Left = 462, .Top = 77, .Font = tahoma(8.25), .ForeColor = title_grey);
    put.on_the_form();
}

void place_about_panel(Designer& put)
{
    ROW(PicInformacion, .Left = 208, .Top = 139, .Width = 329, .Height = 265, .Visible = false);
    put.inside(F1.PicInformacion);
    ROW(Logo, .Left = 0, .Top = 0, .Width = 295, .Height = 72, .Stored = art_picture("Logo"),
        .AccessibleName = "Dervalin Ostrelum");
    ROW(LTInfo1, .Left = 0, .Top = 88, .Font = tahoma(8.25, true), .ForeColor = title_grey);
    ROW(LInfo1, .Left = 0, .Top = 88, .Font = tahoma(8.25), .ForeColor = title_grey,
        .Continues = "LTInfo1");
    ROW(LTInfo2, .Left = 0, .Top = 112, .Font = tahoma(8.25, true), .ForeColor = title_grey);
    ROW(LInfo2, .Left = 0, .Top = 112, .Font = tahoma(8.25), .ForeColor = title_grey,
        .Continues = "LTInfo2");
    ROW(LTInfo3, .Left = 0, .Top = 136, .Font = tahoma(8.25, true), .ForeColor = title_grey);
    ROW(LInfo3, .Left = 0, .Top = 136, .Font = tahoma(8.25), .ForeColor = title_grey,
        .Continues = "LTInfo3");
    ROW(LineI, .X1 = 0, .Y1 = 168, .X2 = 280, .Y2 = 168, .BorderColor = line_grey);
    ROW(LTra, .Left = 0, .Top = 184, .Font = tahoma(8.25, true), .ForeColor = title_grey);
    ROW(LTra1, .Left = 0, .Top = 216, .Font = tahoma(8.25), .ForeColor = title_grey);
    ROW(LTra2, .Left = 0, .Top = 216, .Font = tahoma(8.25), .ForeColor = title_grey,
        .MousePointer = MouseCursor::Hand, .TabStop = true, .Role = LabelRole::Link);
    put.on_the_form();
}

void place_accept_button(Designer& put)
{
    ROW(BAceptar, .Left = 623, .Top = 462, .Width = 94, .Height = 35, .Font = tahoma(8.25),
        .Default = true, .Visible = false);
}

void place_menus(Designer& put)
{
    ROW(MenuOps, );
    put.inside(F1.MenuOps);
    ROW(Personalizar, );
    ROW(CrearInforme, );
    ROW(SepOps1, .Caption = "-");
    ROW(Informacion, );
    ROW(VisitWeb, );
    ROW(SepOps2, .Caption = "-");
    ROW(Quit, .Shortcut = "Ctrl+Q");
    put.on_the_form();
    ROW(MenuCopy, );
    put.inside(F1.MenuCopy);
    ROW(Copy, );
    ROW(CopyAll, );
    put.on_the_form();
}

void place_timers(Designer& put)
{
    ROW(Timer1, .Interval = 1000);
    ROW(TLoad, .Interval = 1);
    ROW(TUnload, .Interval = 1);
    ROW(TAlphaB, .Interval = 1);
}
// clang-format on

void place_controls()
{
    Designer put(F1);
    // A value may be wider than the page: the bands lie over it.
    place_page(put);
    place_bands(put);
    place_left_column(put);
    place_customise_panel(put);
    place_about_panel(put);
    place_accept_button(put);
    place_menus(put);
    place_timers(put);
}

} // namespace

void load_main_form()
{
    F1 = MainForm();
    F1.Name = "F1";
    F1.Caption = "Dervalin Ostrelum";
    F1.ClientWidth = main_form_width;
    F1.ClientHeight = main_form_height;
    F1.BackColor = white;
    F1.Icon = {art_picture("Icon32"), art_picture("Icon16")};
    F1.MinButton = true;
    place_controls();
    F1.handlers = main_form_handlers();
}

} // namespace ostrelum::inline frame
