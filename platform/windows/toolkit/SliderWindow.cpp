#include "platform/windows/toolkit/InputControls.h"

#include <commctrl.h>

#include <algorithm>

namespace ostrelum::windows_platform {
namespace {

/// Steps of one notch of the mouse wheel, as lists scroll.
constexpr int steps_of_a_notch = 3;

} // namespace

SliderWindow::SliderWindow(ScrollBar& bar, int control, FormHost& host, WindowEvents& events)
    : ScrollBarBinding(bar, control, events),
      ControlWindow(control, host, WC_SCROLLBARW, SBS_HORZ | WS_TABSTOP)
{
}

void SliderWindow::apply()
{
    if (moved())
        set_place({control_.Left, control_.Top, control_.Width, control_.Height});
    if (changed(&ScrollBar::Min, &ScrollBar::Max, &ScrollBar::LargeChange, &ScrollBar::Value)) {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMin = control_.Min;
        // The thumb is as long as a page, and the last page begins at the highest value.
        info.nPage = static_cast<UINT>(std::max(control_.LargeChange, 1));
        info.nMax = control_.Max + static_cast<int>(info.nPage) - 1;
        info.nPos = control_.Value;
        SetScrollInfo(handle(), SB_CTL, &info, TRUE);
    }
    if (changed(&ScrollBar::AccessibleName))
        set_text(control_.AccessibleName);
    if (changed(&ScrollBar::Enabled))
        set_enabled(control_.Enabled);
    if (changed(&ScrollBar::Visible))
        set_visible(control_.Visible);
}

void SliderWindow::told(int code)
{
    switch (code) {
    case SB_LINELEFT: move_to(control_.Value - control_.SmallChange); break;
    case SB_LINERIGHT: move_to(control_.Value + control_.SmallChange); break;
    case SB_PAGELEFT: move_to(control_.Value - control_.LargeChange); break;
    case SB_PAGERIGHT: move_to(control_.Value + control_.LargeChange); break;
    case SB_LEFT: move_to(control_.Min); break;
    case SB_RIGHT: move_to(control_.Max); break;
    case SB_THUMBTRACK: drag(); break;
    case SB_ENDSCROLL:
        if (std::exchange(dragged_, false))
            user_lets_go();
        break;
    default: break;
    }
}

void SliderWindow::drag()
{
    if (!std::exchange(dragged_, true))
        user_grabs();
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    GetScrollInfo(handle(), SB_CTL, &info);
    move_to(info.nTrackPos);
}

void SliderWindow::move_to(int wanted)
{
    const int value = std::clamp(wanted, control_.Min, control_.Max);
    if (value == control_.Value)
        return;
    // The thumb goes back to where it was unless it is told to stay.
    SetScrollPos(handle(), SB_CTL, value, TRUE);
    user_moves(value);
}

LRESULT SliderWindow::handle_message(const Message& message)
{
    if (message.number != WM_MOUSEWHEEL)
        return by_default(message);
    const int notches = GET_WHEEL_DELTA_WPARAM(message.first) / WHEEL_DELTA;
    move_to(control_.Value - notches * steps_of_a_notch * control_.SmallChange);
    return 0;
}

} // namespace ostrelum::windows_platform
