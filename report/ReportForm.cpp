#include "report/ReportForm.h"

#include "frame/Pictures.h"
#include "platform/toolkit/Designer.h"
#include "report/ReportEvents.h"

namespace ostrelum::inline report {
namespace {

FontSpec segoe(double size)
{
    return {.Name = "Segoe UI", .Size = size};
}

/// A row of the design: the name is the control's own.
#define ROW(name, ...) put.place(#name, F2.name, {__VA_ARGS__})

// clang-format off
void place_controls()
{
    Designer put(F2);
    ROW(Desc1, .Left = 16, .Top = 16, .Font = segoe(12));
    ROW(Desc2, .Left = 16, .Top = 48, .Width = 385, .Height = 30, .Font = segoe(9),
        .AutoSize = false, .WordWrap = true);
    ROW(Pic1, .Left = 24, .Top = 98, .Width = 16, .Height = 16, .Stored = art_picture("Pic1"));
    ROW(LStatus, .Left = 48, .Top = 99, .Font = segoe(9));
    ROW(BGLine, .X1 = 0, .Y1 = 136, .X2 = 417, .Y2 = 136, .BorderColor = rgb(204, 204, 204));
    ROW(BG, .Left = 0, .Top = 137, .Width = 417, .Height = 44, .BackColor = rgb(240, 240, 240));
    put.inside(F2.BG);
    ROW(BSave, .Left = 166, .Top = 9, .Width = 161, .Height = 26, .Font = segoe(9),
        .Default = true, .Enabled = false);
    ROW(BClose, .Left = 336, .Top = 9, .Width = 73, .Height = 26, .Font = segoe(9),
        .Cancel = true, .Enabled = false);
    put.on_the_form();
    ROW(Descargador, .Interval = 1);
    ROW(TLoad, .Interval = 1);
    ROW(TUnload, .Interval = 1);
    ROW(TAlphaB, .Interval = 1);
}
// clang-format on

} // namespace

void load_report_form()
{
    F2 = ReportForm();
    F2.Name = "F2";
    F2.Caption = "Dervalin Ostrelum";
    F2.ClientWidth = 417;
    F2.ClientHeight = 181;
    F2.BackColor = white;
    place_controls();
    F2.handlers = report_form_handlers();
}

} // namespace ostrelum::inline report
