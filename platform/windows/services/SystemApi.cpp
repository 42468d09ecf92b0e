#include "platform/windows/services/SystemApi.h"

#include "platform/system/Failure.h"
#include "platform/windows/services/Wide.h"
#include "sources/Ascii.h"

#include <array>

#include <windows.h>

#include <lmcons.h>

namespace ostrelum::windows_platform {

std::string own_account()
{
    std::array<wchar_t, UNLEN + 1> name{};
    auto length = static_cast<DWORD>(name.size());
    return GetUserNameW(name.data(), &length) && length > 0 ? narrow({name.data(), length - 1})
                                                            : std::string();
}

WindowsSystemApi::WindowsSystemApi(std::optional<std::string> user)
    : user_(user.value_or(own_account())), instance_(own_account())
{
}

SystemInfo WindowsSystemApi::GetOstrelum()
{
    return {GetActiveProcessorCount(ALL_PROCESSOR_GROUPS)};
}

int WindowsSystemApi::GetSystemMetrics(int index)
{
    return ::GetSystemMetrics(index);
}

std::string WindowsSystemApi::Environ(const std::string& name)
{
    if (same_ascii_letters(name, "UserName"))
        return user_;
    const std::wstring key = wide(name);
    // The size holds the NUL; a variable that grows meanwhile is none.
    std::wstring value(GetEnvironmentVariableW(key.c_str(), nullptr, 0), L'\0');
    const DWORD length =
        GetEnvironmentVariableW(key.c_str(), value.data(), static_cast<DWORD>(value.size()));
    value.resize(length < value.size() ? length : 0);
    return narrow(value);
}

int WindowsSystemApi::GetAttr(const std::string& path)
{
    constexpr DWORD kept = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                           FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_ARCHIVE;
    const DWORD attributes = GetFileAttributesW(wide(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        throw Failure("no such file: " + path);
    return static_cast<int>(attributes & kept);
}

void WindowsSystemApi::End()
{
    ExitProcess(0);
}

} // namespace ostrelum::windows_platform
