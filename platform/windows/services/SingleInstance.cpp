#include "platform/windows/services/SingleInstance.h"

#include "platform/windows/services/Wide.h"

namespace ostrelum::windows_platform {

SingleInstance::~SingleInstance()
{
    if (mutex_)
        CloseHandle(mutex_);
}

bool SingleInstance::held_elsewhere()
{
    if (mutex_)
        return false;
    // "Local" is the session; another user's programs run in it where they are started as him.
    const std::wstring name = L"Local\\Dervalin Ostrelum " + wide(user_);
    mutex_ = CreateMutexW(nullptr, FALSE, name.c_str());
    if (!mutex_ || GetLastError() != ERROR_ALREADY_EXISTS)
        return false;
    CloseHandle(mutex_);
    mutex_ = nullptr;
    return true;
}

} // namespace ostrelum::windows_platform
