#include "platform/windows/services/Dispatch.h"

#include "platform/windows/services/Wide.h"

#include <algorithm>
#include <vector>

namespace ostrelum::windows_platform {
namespace {

void invoke(IDispatch& object, DISPID member, std::initializer_list<VARIANT> arguments,
            OwnedVariant& result)
{
    // The last argument stands first.
    std::vector<VARIANT> reversed(arguments);
    std::ranges::reverse(reversed);
    DISPPARAMS parameters{.rgvarg = reversed.data(),
                          .rgdispidNamedArgs = nullptr,
                          .cArgs = static_cast<UINT>(reversed.size()),
                          .cNamedArgs = 0};
    // Without a record for it, an exception is a failed call like any other.
    check("Invoke",
          object.Invoke(member, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                        &parameters, &result, nullptr, nullptr));
}

} // namespace

void invoke(IDispatch& object, const std::string& name, std::initializer_list<VARIANT> arguments,
            OwnedVariant& result)
{
    std::wstring text = wide(name);
    LPOLESTR names[] = {text.data()};
    DISPID member = DISPID_UNKNOWN;
    check("GetIDsOfNames", object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_NEUTRAL, &member));
    invoke(object, member, arguments, result);
}

void invoke_default(IDispatch& object, std::initializer_list<VARIANT> arguments,
                    OwnedVariant& result)
{
    invoke(object, DISPID_VALUE, arguments, result);
}

} // namespace ostrelum::windows_platform
