#pragma once

#include "platform/toolkit/Toolkit.h"

#include <functional>

#include <windows.h>

namespace ostrelum::windows_platform {

/// Lets a toolkit's events run beside the test. A menu keeps the thread until it goes: events have
/// a fiber of their own, and while a menu is up the test goes on in the first one.
class EventFiber {
public:
    explicit EventFiber(Toolkit& toolkit);
    EventFiber(const EventFiber&) = delete;
    EventFiber& operator=(const EventFiber&) = delete;
    ~EventFiber();

    /// Runs all events that are pending, at least once. Comes back early when a menu comes up.
    void run();

    /// The menu that is up; nullptr for none.
    static HWND menu();

private:
    static void CALLBACK events(void* self);
    static void CALLBACK look_for_menu(HWND, UINT, UINT_PTR, DWORD);

    Toolkit& toolkit_;
    void* test_;
    void* events_;
    UINT_PTR watch_;
};

} // namespace ostrelum::windows_platform
