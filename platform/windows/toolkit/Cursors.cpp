#include "platform/windows/toolkit/Cursors.h"

#include "platform/windows/toolkit/DevicePicture.h"

namespace ostrelum::windows_platform {

Cursors::Cursors(const Picture& hand, Point hot_spot)
    : hand_(hand.empty() ? OwnedIcon() : icon_of(hand, ::GetSystemMetrics(SM_CXCURSOR), &hot_spot))
{
}

HCURSOR Cursors::get(MouseCursor cursor) const
{
    const wchar_t* name = IDC_ARROW;
    if (cursor == MouseCursor::Hourglass)
        name = IDC_WAIT;
    if (cursor == MouseCursor::Hand) {
        if (hand_)
            return hand_.get();
        name = IDC_HAND;
    }
    return LoadCursorW(nullptr, name);
}

} // namespace ostrelum::windows_platform
