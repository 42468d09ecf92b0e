#pragma once

#include "platform/windows/services/Com.h"

#include <atomic>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <wbemidl.h>

// COM's interfaces have no destructor of their own: who releases an object last has the class
// delete it.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// A management service as it is documented (MS-WMI 3.2.4.2.8, "ExecQuery"; IWbemServices and
/// IEnumWbemClassObject of the platform's reference): an unknown class or property is refused with
/// the first object, a null property is VT_NULL, whole numbers come signed, 64-bit ones as text.
namespace ostrelum::windows_platform {

/// Counts references; everything that a test makes must be gone when it ends.
template <class Interface>
class Counted : public Interface {
public:
    Counted() { ++alive; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    virtual ~Counted() { --alive; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** out) override
    {
        *out = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

    inline static std::atomic<int> alive = 0;

private:
    std::atomic<ULONG> references_ = 1;
};

/// One property: its CIM type and what fills a variant; a failure code where Get fails.
struct FakeProperty {
    std::string name;
    CIMTYPE type = CIM_STRING;
    std::function<void(VARIANT&)> fill = [](VARIANT& variant) { variant.vt = VT_NULL; };
    HRESULT failure = S_OK;
};

using FakeObject = std::vector<FakeProperty>;

inline std::function<void(VARIANT&)> text_variant(const std::string& text)
{
    return [text](VARIANT& variant) {
        variant.vt = VT_BSTR;
        variant.bstrVal = SysAllocString(std::wstring(text.begin(), text.end()).c_str());
    };
}

inline std::function<void(VARIANT&)> number_variant(LONG number)
{
    return [number](VARIANT& variant) {
        variant.vt = VT_I4;
        variant.lVal = number;
    };
}

/// What the service says to one query.
struct FakeAnswer {
    HRESULT exec = S_OK;
    std::vector<FakeObject> objects;
    /// What Next gives behind the objects.
    HRESULT end = WBEM_S_FALSE;
    /// Runs while the query is asked.
    std::function<void()> meanwhile = [] {};
};

/// Makes a service that gives these answers, one after the other; the last for ever.
ComPtr<IWbemServices> make_fake_service(std::vector<FakeAnswer> answers);

/// Objects of the fakes that still live.
int fakes_alive();

} // namespace ostrelum::windows_platform
