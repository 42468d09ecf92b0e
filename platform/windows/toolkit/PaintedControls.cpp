#include "platform/windows/toolkit/PaintedControls.h"

#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/Drawing.h"

namespace ostrelum::windows_platform {
namespace {

/// How the system's own static windows align and wrap, for who asks them.
DWORD style_of(const Label& label)
{
    switch (label.Alignment) {
    case Align::Right: return SS_RIGHT;
    case Align::Centre: return SS_CENTER;
    case Align::Left: break;
    }
    return label.WordWrap ? SS_LEFT : SS_LEFTNOWORDWRAP;
}

UINT drawing_of(const Label& label)
{
    UINT drawing = DT_NOPREFIX | (label.WordWrap ? DT_WORDBREAK : 0U);
    if (label.Alignment == Align::Right)
        drawing |= DT_RIGHT;
    if (label.Alignment == Align::Centre)
        drawing |= DT_CENTER;
    return drawing;
}

void set_static_style(HWND window, DWORD style)
{
    const auto rest = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)) & ~DWORD{SS_TYPEMASK};
    SetWindowLongW(window, GWL_STYLE, static_cast<LONG>(rest | style));
}

RECT client_of(HWND window)
{
    RECT client{};
    GetClientRect(window, &client);
    return client;
}

} // namespace

LabelWindow::LabelWindow(Label& label, int control, FormHost& host, WindowEvents& events)
    : BindingOf(label, control, events), PaintedWindow(control, host, SS_LEFTNOWORDWRAP)
{
}

void LabelWindow::apply()
{
    apply_text();
    place_text();
    if (changed(&Label::ToolTipText))
        host_.set_tooltip(place_, control_.ToolTipText);
    if (changed(&Label::Visible))
        set_visible(control_.Visible);
    host_.draw_anew(place_);
}

void LabelWindow::apply_text()
{
    if (sizes_itself(control_) &&
        changed(&Label::Caption, &Label::Font, &Label::AutoSize, &Label::WordWrap))
        fit(host_.toolkit(), control_);
    if (changed(&Label::Font))
        set_font(control_.Font);
    if (changed(&Label::Alignment, &Label::WordWrap))
        set_static_style(handle(), style_of(control_));
    if (changed(&Label::Caption))
        set_text(control_.Caption);
}

/// A slanted letter may lean out of the text on the left, where the window would cut it, and a
/// smoothed one reach past the end that the system tells.
void LabelWindow::place_text()
{
    if (!changed(&Label::Left, &Label::Top, &Label::Width, &Label::Height, &Label::Caption,
                 &Label::Font))
        return;
    const Scale scale = host_.scale();
    Area area = place_in_holder(control_);
    lean_ = reach_ = 0;
    if (sizes_itself(control_)) {
        const int lean =
            scale.room_on_form(measure(wide(control_.Caption), host_.font(control_.Font)).left);
        lean_ = scale.to_screen(lean);
        // On a small screen rounding takes up to a pixel of the screen.
        const bool small = scale.dpi < USER_DEFAULT_SCREEN_DPI;
        const int needed = small ? scale.room_on_form(reach + 1) : reach;
        const int behind = control_.Caption.empty() ? 0 : needed;
        reach_ = scale.to_screen(behind);
        area.left -= lean;
        area.width += lean + behind;
    }
    set_place(area);
}

void LabelWindow::draw(HDC dc) const
{
    if (!shown())
        return;
    RECT place = client_of(handle());
    place.left += lean_;
    place.right -= reach_;
    const Selected font(dc, host_.font(shown()->Font));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, shown()->ForeColor);
    const std::wstring text = wide(shown()->Caption);
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &place,
              drawing_of(*shown()) | DT_NOCLIP);
}

PictureWindow::PictureWindow(PictureBox& box, int control, FormHost& host, WindowEvents& events)
    : BindingOf(box, control, events), PaintedWindow(control, host, SS_OWNERDRAW)
{
}

void PictureWindow::apply()
{
    if (moved())
        set_place(place_in_holder(control_));
    if (changed(&PictureBox::Surface))
        picture_.set(control_.Surface, host_.scale());
    if (changed(&PictureBox::ToolTipText))
        host_.set_tooltip(place_, control_.ToolTipText);
    if (changed(&PictureBox::AccessibleName))
        set_text(control_.AccessibleName);
    if (changed(&PictureBox::Visible))
        set_visible(control_.Visible);
    if (changed(&PictureBox::Surface, &PictureBox::Transparent, &PictureBox::BackColor))
        host_.draw_anew(place_);
}

bool PictureWindow::is_opaque() const
{
    return shown() && !shown()->Transparent;
}

void PictureWindow::draw(HDC dc) const
{
    if (!shown())
        return;
    if (!shown()->Transparent)
        fill(dc, client_of(handle()), shown()->BackColor);
    picture_.draw(dc, {0, 0});
}

LineWindow::LineWindow(Line& line, int control, FormHost& host, WindowEvents& events)
    : BindingOf(line, control, events), PaintedWindow(control, host, SS_OWNERDRAW)
{
}

void LineWindow::apply()
{
    if (changed(&Line::X1, &Line::Y1, &Line::X2, &Line::Y2))
        set_place(area_of(control_));
    if (changed(&Line::Visible))
        set_visible(control_.Visible);
    host_.draw_anew(place_);
}

void LineWindow::draw(HDC dc) const
{
    if (!shown())
        return;
    const RECT place = client_of(handle());
    if (shown()->X1 == shown()->X2 || shown()->Y1 == shown()->Y2) {
        fill(dc, place, shown()->BorderColor);
        return;
    }
    const bool falls = (shown()->X2 > shown()->X1) == (shown()->Y2 > shown()->Y1);
    const Selected pen(dc, GetStockObject(DC_PEN));
    SetDCPenColor(dc, shown()->BorderColor);
    MoveToEx(dc, place.left, falls ? place.top : place.bottom - 1, nullptr);
    LineTo(dc, place.right, falls ? place.bottom : place.top - 1);
}

} // namespace ostrelum::windows_platform
