#pragma once

#include "platform/windows/services/Com.h"

#include <initializer_list>
#include <string>

namespace ostrelum::windows_platform {

/// Calls a method, or reads a property, of an object that is known by names alone. The arguments in
/// the order in which one reads them; they stay the caller's. Throws Failure for a name that the
/// object does not know, and for whatever the call itself fails with.
void invoke(IDispatch& object, const std::string& name, std::initializer_list<VARIANT> arguments,
            OwnedVariant& result);

/// The same for the member that an object is known by itself.
void invoke_default(IDispatch& object, std::initializer_list<VARIANT> arguments,
                    OwnedVariant& result);

} // namespace ostrelum::windows_platform
