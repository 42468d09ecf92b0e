#include "tests/platform/windows/FakeWmi.h"

#include "platform/windows/services/Wide.h"
#include "tests/platform/windows/UnusedCalls.h"

#include <algorithm>
#include <mutex>

namespace ostrelum::windows_platform {
namespace {

class Object : public Counted<ObjectCalls> {
public:
    explicit Object(FakeObject properties) : properties_(std::move(properties)) {}

    HRESULT STDMETHODCALLTYPE GetNames(LPCWSTR, LONG, VARIANT*, SAFEARRAY** names) override
    {
        *names = SafeArrayCreateVector(VT_BSTR, 0, static_cast<ULONG>(properties_.size()));
        for (LONG at = 0; const FakeProperty& property : properties_) {
            const OwnedBstr name(property.name);
            SafeArrayPutElement(*names, &at, name.get());
            ++at;
        }
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE Get(LPCWSTR name, LONG, VARIANT* value, CIMTYPE* type, LONG*) override
    {
        const auto found = std::ranges::find(properties_, narrow(name), &FakeProperty::name);
        if (found == properties_.end())
            return static_cast<HRESULT>(WBEM_E_NOT_FOUND);
        if (FAILED(found->failure))
            return found->failure;
        *type = found->type;
        VariantInit(value);
        found->fill(*value);
        return S_OK;
    }

private:
    FakeObject properties_;
};

class Enumerator : public Counted<EnumeratorCalls> {
public:
    explicit Enumerator(FakeAnswer answer) : answer_(std::move(answer)) {}

    HRESULT STDMETHODCALLTYPE Next(LONG, ULONG, IWbemClassObject** object, ULONG* count) override
    {
        *object = nullptr;
        *count = 0;
        if (at_ == answer_.objects.size())
            return answer_.end;
        *object = new Object(answer_.objects[at_++]);
        *count = 1;
        return WBEM_S_NO_ERROR;
    }

private:
    FakeAnswer answer_;
    std::size_t at_ = 0;
};

class Service : public Counted<ServiceCalls> {
public:
    explicit Service(std::vector<FakeAnswer> answers) : answers_(std::move(answers)) {}

    HRESULT STDMETHODCALLTYPE ExecQuery(BSTR, BSTR, LONG, IWbemContext*,
                                        IEnumWbemClassObject** objects) override
    {
        const FakeAnswer& answer = answers_[std::min(asked_++, answers_.size() - 1)];
        answer.meanwhile();
        *objects = FAILED(answer.exec) ? nullptr : new Enumerator(answer);
        return answer.exec;
    }

private:
    std::vector<FakeAnswer> answers_;
    std::size_t asked_ = 0;
};

} // namespace

ComPtr<IWbemServices> make_fake_service(std::vector<FakeAnswer> answers)
{
    ComPtr<IWbemServices> service;
    *service.GetAddressOf() = new Service(std::move(answers));
    return service;
}

int fakes_alive()
{
    return Object::alive + Enumerator::alive + Service::alive;
}

} // namespace ostrelum::windows_platform
