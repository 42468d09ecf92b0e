#pragma once

#include <wbemidl.h>

/// The calls of the service's interfaces that the program has no use for, so that a fake holds what
/// it is about.
namespace ostrelum::windows_platform {

#define OSTRELUM_UNUSED(name, ...)                                                                 \
    HRESULT STDMETHODCALLTYPE name(__VA_ARGS__) override                                           \
    {                                                                                              \
        return E_NOTIMPL;                                                                          \
    }

class ObjectCalls : public IWbemClassObject {
public:
    OSTRELUM_UNUSED(GetQualifierSet, IWbemQualifierSet**)
    OSTRELUM_UNUSED(Put, LPCWSTR, LONG, VARIANT*, CIMTYPE)
    OSTRELUM_UNUSED(Delete, LPCWSTR)
    OSTRELUM_UNUSED(BeginEnumeration, LONG)
    OSTRELUM_UNUSED(Next, LONG, BSTR*, VARIANT*, CIMTYPE*, LONG*)
    OSTRELUM_UNUSED(EndEnumeration)
    OSTRELUM_UNUSED(GetPropertyQualifierSet, LPCWSTR, IWbemQualifierSet**)
    OSTRELUM_UNUSED(Clone, IWbemClassObject**)
    OSTRELUM_UNUSED(GetObjectText, LONG, BSTR*)
    OSTRELUM_UNUSED(SpawnDerivedClass, LONG, IWbemClassObject**)
    OSTRELUM_UNUSED(SpawnInstance, LONG, IWbemClassObject**)
    OSTRELUM_UNUSED(CompareTo, LONG, IWbemClassObject*)
    OSTRELUM_UNUSED(GetPropertyOrigin, LPCWSTR, BSTR*)
    OSTRELUM_UNUSED(InheritsFrom, LPCWSTR)
    OSTRELUM_UNUSED(GetMethod, LPCWSTR, LONG, IWbemClassObject**, IWbemClassObject**)
    OSTRELUM_UNUSED(PutMethod, LPCWSTR, LONG, IWbemClassObject*, IWbemClassObject*)
    OSTRELUM_UNUSED(DeleteMethod, LPCWSTR)
    OSTRELUM_UNUSED(BeginMethodEnumeration, LONG)
    OSTRELUM_UNUSED(NextMethod, LONG, BSTR*, IWbemClassObject**, IWbemClassObject**)
    OSTRELUM_UNUSED(EndMethodEnumeration)
    OSTRELUM_UNUSED(GetMethodQualifierSet, LPCWSTR, IWbemQualifierSet**)
    OSTRELUM_UNUSED(GetMethodOrigin, LPCWSTR, BSTR*)
};

class EnumeratorCalls : public IEnumWbemClassObject {
public:
    OSTRELUM_UNUSED(Reset)
    OSTRELUM_UNUSED(NextAsync, ULONG, IWbemObjectSink*)
    OSTRELUM_UNUSED(Clone, IEnumWbemClassObject**)
    OSTRELUM_UNUSED(Skip, LONG, ULONG)
};

class ServiceCalls : public IWbemServices {
public:
    using Sink = IWbemObjectSink*;
    using Result = IWbemCallResult**;
    using Object = IWbemClassObject*;

    OSTRELUM_UNUSED(OpenNamespace, BSTR, LONG, IWbemContext*, IWbemServices**, Result)
    OSTRELUM_UNUSED(CancelAsyncCall, Sink)
    OSTRELUM_UNUSED(QueryObjectSink, LONG, IWbemObjectSink**)
    OSTRELUM_UNUSED(GetObject, BSTR, LONG, IWbemContext*, IWbemClassObject**, Result)
    OSTRELUM_UNUSED(GetObjectAsync, BSTR, LONG, IWbemContext*, Sink)
    OSTRELUM_UNUSED(PutClass, Object, LONG, IWbemContext*, Result)
    OSTRELUM_UNUSED(PutClassAsync, Object, LONG, IWbemContext*, Sink)
    OSTRELUM_UNUSED(DeleteClass, BSTR, LONG, IWbemContext*, Result)
    OSTRELUM_UNUSED(DeleteClassAsync, BSTR, LONG, IWbemContext*, Sink)
    OSTRELUM_UNUSED(CreateClassEnum, BSTR, LONG, IWbemContext*, IEnumWbemClassObject**)
    OSTRELUM_UNUSED(CreateClassEnumAsync, BSTR, LONG, IWbemContext*, Sink)
    OSTRELUM_UNUSED(PutInstance, Object, LONG, IWbemContext*, Result)
    OSTRELUM_UNUSED(PutInstanceAsync, Object, LONG, IWbemContext*, Sink)
    OSTRELUM_UNUSED(DeleteInstance, BSTR, LONG, IWbemContext*, Result)
    OSTRELUM_UNUSED(DeleteInstanceAsync, BSTR, LONG, IWbemContext*, Sink)
    OSTRELUM_UNUSED(CreateInstanceEnum, BSTR, LONG, IWbemContext*, IEnumWbemClassObject**)
    OSTRELUM_UNUSED(CreateInstanceEnumAsync, BSTR, LONG, IWbemContext*, Sink)
    OSTRELUM_UNUSED(ExecQueryAsync, BSTR, BSTR, LONG, IWbemContext*, Sink)
    OSTRELUM_UNUSED(ExecNotificationQuery, BSTR, BSTR, LONG, IWbemContext*, IEnumWbemClassObject**)
    OSTRELUM_UNUSED(ExecNotificationQueryAsync, BSTR, BSTR, LONG, IWbemContext*, Sink)
    OSTRELUM_UNUSED(ExecMethod, BSTR, BSTR, LONG, IWbemContext*, Object, IWbemClassObject**, Result)
    OSTRELUM_UNUSED(ExecMethodAsync, BSTR, BSTR, LONG, IWbemContext*, Object, Sink)
};

#undef OSTRELUM_UNUSED

} // namespace ostrelum::windows_platform
