#include "platform/windows/services/WmiQuery.h"

#include "platform/windows/services/VariantValue.h"

#include <algorithm>
#include <array>
#include <optional>

namespace ostrelum::windows_platform {
namespace {

/// WBEM_INFINITE in the type that the call takes.
constexpr LONG forever = -1;

/// What a call of an object gives that has lost its process.
bool tells_of_the_end(HRESULT result)
{
    const std::array<HRESULT, 7> ends{
        RPC_E_DISCONNECTED,
        RPC_E_SERVER_DIED,
        RPC_E_SERVER_DIED_DNE,
        CO_E_OBJNOTCONNECTED,
        static_cast<HRESULT>(WBEM_E_SHUTTING_DOWN),
        HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE),
        HRESULT_FROM_WIN32(RPC_S_CALL_FAILED),
    };
    return std::ranges::find(ends, result) != ends.end();
}

void check_service(const char* call, HRESULT result)
{
    if (tells_of_the_end(result))
        throw ServiceGone(failed_call(call, result));
    check(call, result);
}

/// Nothing if the object does not give the property.
std::optional<Value> property_of(IWbemClassObject& object, BSTR name)
{
    OwnedVariant held;
    CIMTYPE type = CIM_EMPTY;
    if (FAILED(object.Get(name, 0, &held, &type, nullptr)))
        return std::nullopt;
    try {
        return value_of(*held, type);
    } catch (const Failure&) {
        return std::nullopt;
    }
}

Instance instance_of(IWbemClassObject& object)
{
    OwnedVariant names;
    check("GetNames", object.GetNames(nullptr, WBEM_FLAG_ALWAYS | WBEM_FLAG_NONSYSTEM_ONLY, nullptr,
                                      &names->parray));
    names->vt = VT_ARRAY | VT_BSTR;
    LONG last = -1;
    check("SafeArrayGetUBound", SafeArrayGetUBound(names->parray, 1, &last));
    std::vector<Instance::Property> properties;
    for (LONG at = 0; at <= last; ++at) {
        OwnedVariant name;
        check("SafeArrayGetElement", SafeArrayGetElement(names->parray, &at, &name->bstrVal));
        name->vt = VT_BSTR;
        if (auto value = property_of(object, name->bstrVal))
            properties.emplace_back(text_of(name->bstrVal), std::move(*value));
    }
    return Instance(std::move(properties));
}

} // namespace

ComPtr<IWbemServices> connect_to_namespace(const std::string& name)
{
    ComPtr<IWbemLocator> locator;
    check("WbemLocator", CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER,
                                          IID_PPV_ARGS(locator.GetAddressOf())));
    ComPtr<IWbemServices> service;
    const OwnedBstr resource(name);
    check("ConnectServer", locator->ConnectServer(resource.get(), nullptr, nullptr, nullptr,
                                                  WBEM_FLAG_CONNECT_USE_MAX_WAIT, nullptr, nullptr,
                                                  service.GetAddressOf()));
    check("CoSetProxyBlanket", CoSetProxyBlanket(service.Get(), RPC_C_AUTHN_WINNT, RPC_C_AUTHZ_NONE,
                                                 nullptr, RPC_C_AUTHN_LEVEL_CALL,
                                                 RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE));
    return service;
}

ResultSet run_wmi_query(IWbemServices& service, const std::string& wql)
{
    const OwnedBstr language("WQL");
    const OwnedBstr text(wql);
    ComPtr<IEnumWbemClassObject> objects;
    check_service("ExecQuery",
                  service.ExecQuery(language.get(), text.get(),
                                    WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY, nullptr,
                                    objects.GetAddressOf()));
    ResultSet result;
    while (true) {
        ComPtr<IWbemClassObject> object;
        ULONG count = 0;
        const HRESULT next = objects->Next(forever, 1, object.GetAddressOf(), &count);
        if (result.empty())
            check_service("Next", next);
        if (next != WBEM_S_NO_ERROR || count == 0)
            return result;
        result.push_back(instance_of(*object.Get()));
    }
}

} // namespace ostrelum::windows_platform
