#pragma once

#include "platform/system/Failure.h"

#include <string>
#include <string_view>

#include <windows.h>

#include <oleauto.h>
#include <wrl/client.h>

namespace ostrelum::windows_platform {

using Microsoft::WRL::ComPtr;

/// A failed call as the text of a Failure, such as "ExecQuery: 0x80041017".
std::string failed_call(const char* call, HRESULT result);

/// Throws Failure for a result that tells of one.
void check(const char* call, HRESULT result);

/// COM on this thread, from here to the end of the object. Objects that are got meanwhile must be
/// released before. Throws Failure if the thread is in another kind of apartment.
class Apartment {
public:
    explicit Apartment(DWORD kind);
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    ~Apartment() { CoUninitialize(); }
};

/// A variant that lets go of what it holds.
class OwnedVariant {
public:
    OwnedVariant() { VariantInit(&held_); }
    explicit OwnedVariant(std::string_view text);
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;
    ~OwnedVariant() { VariantClear(&held_); }

    VARIANT& operator*() { return held_; }
    VARIANT* operator->() { return &held_; }
    VARIANT* operator&() { return &held_; }

private:
    VARIANT held_;
};

/// A text in the form that COM hands round.
class OwnedBstr {
public:
    explicit OwnedBstr(std::string_view text);
    OwnedBstr(const OwnedBstr&) = delete;
    OwnedBstr& operator=(const OwnedBstr&) = delete;
    ~OwnedBstr() { SysFreeString(held_); }

    BSTR get() const { return held_; }

private:
    BSTR held_;
};

/// UTF-8 of such a text; none is the empty one.
std::string text_of(BSTR text);

} // namespace ostrelum::windows_platform
