#include "tests/platform/windows/toolkit/EventFiber.h"

namespace ostrelum::windows_platform {
namespace {

constexpr UINT watch_ms = 10;
constexpr SIZE_T default_stack = 0;
EventFiber* running = nullptr;

} // namespace

EventFiber::EventFiber(Toolkit& toolkit)
    : toolkit_(toolkit), test_(ConvertThreadToFiber(nullptr)),
      events_(CreateFiber(default_stack, events, this)),
      watch_(SetTimer(nullptr, 0, watch_ms, look_for_menu))
{
    running = this;
}

EventFiber::~EventFiber()
{
    KillTimer(nullptr, watch_);
    DeleteFiber(events_);
    ConvertFiberToThread();
    running = nullptr;
}

void EventFiber::run()
{
    if (GetCurrentFiber() == events_)
        toolkit_.DoEvents();
    else
        SwitchToFiber(events_);
}

void CALLBACK EventFiber::events(void* self)
{
    auto& fiber = *static_cast<EventFiber*>(self);
    while (true) {
        fiber.toolkit_.DoEvents();
        SwitchToFiber(fiber.test_);
    }
}

/// A menu's own loop lets timers run.
void CALLBACK EventFiber::look_for_menu(HWND, UINT, UINT_PTR, DWORD)
{
    if (running && menu() && GetCurrentFiber() == running->events_)
        SwitchToFiber(running->test_);
}

HWND EventFiber::menu()
{
    const HWND found = FindWindowW(L"#32768", nullptr);
    return found && IsWindowVisible(found) ? found : nullptr;
}

} // namespace ostrelum::windows_platform
