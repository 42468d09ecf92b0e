#include "platform/windows/toolkit/Accessible.h"

#include "platform/windows/services/Com.h"

#include <atomic>

namespace ostrelum::windows_platform {
namespace {

bool is_self(const VARIANT& child)
{
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

// The system's interfaces have no destructor of their own.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The system's object of a window, with what the program knows better.
class WindowAccessible final : public IAccessible {
public:
    WindowAccessible(HWND window, ComPtr<IAccessible> own) : window_(window), own_(std::move(own))
    {
    }
    WindowAccessible(const WindowAccessible&) = delete;
    WindowAccessible& operator=(const WindowAccessible&) = delete;
    virtual ~WindowAccessible() = default;

    STDMETHODIMP QueryInterface(REFIID wanted, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
    STDMETHODIMP accDoDefaultAction(VARIANT child) override;

    // All the rest is the system's own.
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return own_->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override
    {
        return own_->GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* numbers) override
    {
        return own_->GetIDsOfNames(id, names, count, locale, numbers);
    }
    STDMETHODIMP Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* failure, UINT* argument) override
    {
        return own_->Invoke(member, id, locale, flags, parameters, result, failure, argument);
    }
    STDMETHODIMP get_accParent(IDispatch** parent) override { return own_->get_accParent(parent); }
    STDMETHODIMP get_accChildCount(LONG* count) override { return own_->get_accChildCount(count); }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override
    {
        return own_->get_accChild(child, object);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override
    {
        return own_->get_accDescription(child, text);
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* text) override
    {
        return own_->get_accHelp(child, text);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override
    {
        return own_->get_accHelpTopic(file, child, topic);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* key) override
    {
        return own_->get_accKeyboardShortcut(child, key);
    }
    STDMETHODIMP get_accFocus(VARIANT* child) override { return own_->get_accFocus(child); }
    STDMETHODIMP get_accSelection(VARIANT* child) override { return own_->get_accSelection(child); }
    STDMETHODIMP accSelect(LONG flags, VARIANT child) override
    {
        return own_->accSelect(flags, child);
    }
    STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                             VARIANT child) override
    {
        return own_->accLocation(left, top, width, height, child);
    }
    STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override
    {
        return own_->accNavigate(direction, start, end);
    }
    STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* child) override
    {
        return own_->accHitTest(left, top, child);
    }
    STDMETHODIMP put_accName(VARIANT, BSTR) override { return DISP_E_MEMBERNOTFOUND; }
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override
    {
        return own_->put_accValue(child, value);
    }

private:
    /// False once the window has gone.
    bool ask(Spoken& spoken) const
    {
        return SendMessageW(window_, what_is_spoken, 0, reinterpret_cast<LPARAM>(&spoken)) != 0;
    }

    HWND window_;
    ComPtr<IAccessible> own_;
    std::atomic<ULONG> references_{1};
};

#pragma GCC diagnostic pop

HRESULT WindowAccessible::QueryInterface(REFIID wanted, void** object)
{
    if (!object)
        return E_POINTER;
    const bool known = IsEqualGUID(wanted, __uuidof(IUnknown)) ||
                       IsEqualGUID(wanted, __uuidof(IDispatch)) ||
                       IsEqualGUID(wanted, __uuidof(IAccessible));
    *object = known ? static_cast<IAccessible*>(this) : nullptr;
    if (!known)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG WindowAccessible::Release()
{
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

HRESULT WindowAccessible::get_accName(VARIANT child, BSTR* name)
{
    Spoken spoken;
    if (!name || !is_self(child) || !ask(spoken))
        return own_->get_accName(child, name);
    *name = spoken.name.empty() ? nullptr : SysAllocString(spoken.name.c_str());
    return *name ? S_OK : S_FALSE;
}

HRESULT WindowAccessible::get_accValue(VARIANT child, BSTR* value)
{
    Spoken spoken;
    if (!value || !is_self(child) || !ask(spoken) || spoken.value.empty())
        return own_->get_accValue(child, value);
    *value = SysAllocString(spoken.value.c_str());
    return *value ? S_OK : E_OUTOFMEMORY;
}

HRESULT WindowAccessible::get_accRole(VARIANT child, VARIANT* role)
{
    Spoken spoken;
    if (!role || !is_self(child) || !ask(spoken))
        return own_->get_accRole(child, role);
    role->vt = VT_I4;
    role->lVal = spoken.role;
    return S_OK;
}

HRESULT WindowAccessible::get_accState(VARIANT child, VARIANT* state)
{
    const HRESULT result = own_->get_accState(child, state);
    Spoken spoken;
    if (SUCCEEDED(result) && is_self(child) && state->vt == VT_I4 && ask(spoken))
        state->lVal |= spoken.state;
    return result;
}

HRESULT WindowAccessible::get_accDefaultAction(VARIANT child, BSTR* action)
{
    Spoken spoken;
    if (!action || !is_self(child) || !ask(spoken) || spoken.action.empty())
        return own_->get_accDefaultAction(child, action);
    *action = SysAllocString(spoken.action.c_str());
    return *action ? S_OK : E_OUTOFMEMORY;
}

HRESULT WindowAccessible::accDoDefaultAction(VARIANT child)
{
    Spoken spoken;
    if (!is_self(child) || !ask(spoken) || spoken.action.empty())
        return own_->accDoDefaultAction(child);
    // The reader is not to wait for what the press does.
    return PostMessageW(window_, press_control, 0, 0) ? S_OK : E_FAIL;
}

} // namespace

LRESULT accessible_object(HWND window, WPARAM flags)
{
    ComPtr<IAccessible> own;
    if (FAILED(CreateStdAccessibleObject(window, OBJID_CLIENT, __uuidof(IAccessible),
                                         reinterpret_cast<void**>(own.GetAddressOf()))))
        return 0;
    auto* object = new WindowAccessible(window, std::move(own));
    const LRESULT answer = LresultFromObject(__uuidof(IAccessible), flags, object);
    object->Release();
    return answer;
}

} // namespace ostrelum::windows_platform
