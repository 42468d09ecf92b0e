#include "platform/windows/services/Waiting.h"

#include <algorithm>

namespace ostrelum::windows_platform {
namespace {

/// The system takes a thread for hung that looks at no message for five seconds, and covers its
/// windows.
constexpr ULONGLONG longest_nap_ms = 1000;

void paint()
{
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    while (PeekMessageW(&message, nullptr, WM_PAINT, WM_PAINT, PM_REMOVE | PM_QS_PAINT))
        DispatchMessageW(&message);
}

} // namespace

bool wait_and_paint(HANDLE object, std::chrono::milliseconds patience)
{
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(patience.count());
    while (true) {
        const ULONGLONG now = GetTickCount64();
        const ULONGLONG left = now < end ? std::min(end - now, longest_nap_ms) : 0;
        const DWORD woken = MsgWaitForMultipleObjectsEx(
            1, &object, static_cast<DWORD>(left), QS_PAINT | QS_SENDMESSAGE, MWMO_INPUTAVAILABLE);
        if (woken == WAIT_OBJECT_0)
            return true;
        if (now >= end)
            return false;
        paint();
    }
}

} // namespace ostrelum::windows_platform
