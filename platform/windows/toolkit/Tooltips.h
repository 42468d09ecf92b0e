#pragma once

#include "platform/windows/toolkit/OwnedHandle.h"

#include <string>

namespace ostrelum::windows_platform {

/// The tooltips of a form's window, each one line up to the width of the screen.
class Tooltips {
public:
    explicit Tooltips(HWND form);
    /// An empty text takes the control's away. `text` is UTF-8.
    void set(HWND control, const std::string& text);
    /// For who asks what a control's tooltip says.
    HWND window() const { return window_.get(); }

private:
    HWND form_;
    OwnedWindow window_;
};

} // namespace ostrelum::windows_platform
