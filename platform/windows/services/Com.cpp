#include "platform/windows/services/Com.h"

#include "platform/windows/services/Wide.h"

#include <array>
#include <cstdio>
#include <new>

namespace ostrelum::windows_platform {
namespace {

BSTR allocated(std::string_view text)
{
    const std::wstring utf16 = wide(text);
    const BSTR copy = SysAllocStringLen(utf16.data(), static_cast<UINT>(utf16.size()));
    if (!copy)
        throw std::bad_alloc();
    return copy;
}

} // namespace

std::string failed_call(const char* call, HRESULT result)
{
    std::array<char, 16> code{};
    std::snprintf(code.data(), code.size(), "0x%08lX", static_cast<unsigned long>(result));
    return std::string(call) + ": " + code.data();
}

void check(const char* call, HRESULT result)
{
    if (FAILED(result))
        throw Failure(failed_call(call, result));
}

Apartment::Apartment(DWORD kind)
{
    check("CoInitializeEx", CoInitializeEx(nullptr, kind));
}

OwnedVariant::OwnedVariant(std::string_view text)
{
    VariantInit(&held_);
    held_.bstrVal = allocated(text);
    held_.vt = VT_BSTR;
}

OwnedBstr::OwnedBstr(std::string_view text) : held_(allocated(text)) {}

std::string text_of(BSTR text)
{
    return text ? narrow({text, SysStringLen(text)}) : std::string();
}

} // namespace ostrelum::windows_platform
