#pragma once

#include <chrono>

#include <windows.h>

namespace ostrelum::windows_platform {

/// Waits until the object is signalled and meanwhile lets windows of this thread be painted, so
/// that they stay whole; no other event reaches them. False if `patience` ends first.
bool wait_and_paint(HANDLE object, std::chrono::milliseconds patience);

} // namespace ostrelum::windows_platform
