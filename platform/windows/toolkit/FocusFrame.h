#pragma once

#include "platform/windows/toolkit/OwnedHandle.h"
#include "platform/windows/toolkit/Scale.h"

namespace ostrelum::windows_platform {

/// The frame round the control that has the keyboard: a window of its own over all others of the
/// form's, because a picture may lie over the control.
class FocusFrame {
public:
    explicit FocusFrame(HWND form);
    /// Shows round a control, the pixels of the form's window that it covers; nullptr hides it.
    void follow(HWND control, RECT place, Scale scale);
    /// The window that it shows round; nullptr while it is hidden.
    HWND followed() const { return followed_; }

private:
    static LRESULT CALLBACK receive(HWND window, UINT number, WPARAM first, LPARAM second, UINT_PTR,
                                    DWORD_PTR);

    OwnedWindow window_;
    HWND followed_ = nullptr;
    RECT place_{};
};

} // namespace ostrelum::windows_platform
