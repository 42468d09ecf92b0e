#include "platform/windows/services/VariantValue.h"

#include "platform/windows/services/Com.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace ostrelum::windows_platform {
namespace {

Value scalar(const VARIANT& variant, CIMTYPE type);

/// A whole number in the width and with the sign of its property's type.
std::int64_t in_type(std::int64_t number, CIMTYPE type)
{
    switch (type) {
    case CIM_UINT8: return static_cast<std::uint8_t>(number);
    case CIM_SINT8: return static_cast<std::int8_t>(number);
    case CIM_UINT16:
    case CIM_CHAR16: return static_cast<std::uint16_t>(number);
    case CIM_SINT16: return static_cast<std::int16_t>(number);
    case CIM_UINT32: return static_cast<std::uint32_t>(number);
    default: return number;
    }
}

Value whole(std::int64_t number, CIMTYPE type)
{
    if (type == CIM_BOOLEAN)
        return number != 0;
    return in_type(number, type);
}

/// The elements of an array of one dimension. Throws Failure for any other.
Value list(const VARIANT& variant, CIMTYPE type)
{
    SAFEARRAY* const array = variant.parray;
    LONG first = 0;
    LONG last = -1;
    if (!array || SafeArrayGetDim(array) != 1)
        throw Failure("an array of several dimensions");
    check("SafeArrayGetLBound", SafeArrayGetLBound(array, 1, &first));
    check("SafeArrayGetUBound", SafeArrayGetUBound(array, 1, &last));
    const auto kind = static_cast<VARTYPE>(variant.vt & ~VT_ARRAY);
    std::vector<Value> items;
    for (LONG at = first; at <= last; ++at) {
        OwnedVariant item;
        // An element lies where a variant keeps its value, or is a variant itself.
        check("SafeArrayGetElement",
              SafeArrayGetElement(array, &at,
                                  kind == VT_VARIANT ? static_cast<void*>(&item) : &item->bVal));
        if (kind != VT_VARIANT)
            item->vt = kind;
        items.push_back(scalar(*item, type));
    }
    return Value(std::move(items));
}

Value scalar(const VARIANT& variant, CIMTYPE type)
{
    switch (variant.vt) {
    case VT_EMPTY:
    case VT_NULL: return {};
    case VT_BOOL: return variant.boolVal != VARIANT_FALSE;
    case VT_I1: return whole(variant.cVal, type);
    case VT_UI1: return whole(variant.bVal, type);
    case VT_I2: return whole(variant.iVal, type);
    case VT_UI2: return whole(variant.uiVal, type);
    case VT_I4:
    case VT_INT: return whole(variant.lVal, type);
    case VT_UI4:
    case VT_UINT: return whole(variant.ulVal, type);
    case VT_I8: return std::to_string(variant.llVal);
    case VT_UI8: return std::to_string(variant.ullVal);
    case VT_R4: return double{variant.fltVal};
    case VT_R8: return variant.dblVal;
    case VT_BSTR: return text_of(variant.bstrVal);
    default: throw Failure("a kind of variant that no property has: " + std::to_string(variant.vt));
    }
}

} // namespace

Value value_of(const VARIANT& variant, CIMTYPE type)
{
    const auto element_type = type & ~CIMTYPE{CIM_FLAG_ARRAY};
    if (variant.vt & VT_ARRAY)
        return list(variant, element_type);
    return scalar(variant, element_type);
}

} // namespace ostrelum::windows_platform
