#pragma once

#include "sources/Value.h"

#include <windows.h>

#include <oaidl.h>
#include <wbemidl.h>

namespace ostrelum::windows_platform {

/// A property's value as the management service delivers it. It puts whole numbers of any size into
/// a signed 32-bit one and 64-bit numbers into text; `type`, the property's own, tells which is
/// meant (MS-WMI 2.2.4, "CIM types and variants"). Throws Failure for an object and for a kind of
/// variant that no property has.
Value value_of(const VARIANT& variant, CIMTYPE type);

} // namespace ostrelum::windows_platform
