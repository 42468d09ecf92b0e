#pragma once

#include "platform/windows/toolkit/OwnedHandle.h"

#include <string>

namespace ostrelum::windows_platform {

/// What a screen reader is to say at once: an alert in the form's window, which nobody sees.
class Announcement {
public:
    explicit Announcement(HWND form);
    void say(const std::string& text);

private:
    static LRESULT CALLBACK receive(HWND window, UINT number, WPARAM first, LPARAM second, UINT_PTR,
                                    DWORD_PTR);

    OwnedWindow window_;
};

} // namespace ostrelum::windows_platform
