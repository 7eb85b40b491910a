// IDispatch for an interface, from its description in the type library in the module's resources.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include "com/Ptr.h"

namespace recoveryui::com {

// The description of an interface in the module's own type library.
HRESULT FindTypeInfo(REFIID iid, ITypeInfo** info) noexcept;

// An interface as the type library describes it, looked up when first needed: what a Dual answers with.
class Description {
public:
    explicit Description(REFIID iid) noexcept : iid_(iid) {}
    HRESULT GetInfo(UINT index, ITypeInfo** info) const noexcept;
    HRESULT GetIds(REFIID reserved, LPOLESTR* names, UINT count, DISPID* ids) noexcept;
    HRESULT Invoke(IUnknown* object, DISPID id, REFIID reserved, WORD flags, DISPPARAMS* parameters,
                   VARIANT* result, EXCEPINFO* exception, UINT* argument) noexcept;

private:
    HRESULT Load() noexcept { return info_ ? S_OK : FindTypeInfo(iid_, info_.GetAddressOf()); }

    const IID& iid_;
    Ptr<ITypeInfo> info_;
};

// Stands in an Object's interface list in place of the dual interface itself. An interface that is not dual
// stands in the list on its own, beside the `Dual<Interface, IDispatch>` that calls it by name.
template <class Interface, class Base = Interface>
class Dual : public Base {
public:
    static bool Answers(REFIID iid) noexcept {
        return IsEqualIID(iid, __uuidof(Base)) || IsEqualIID(iid, IID_IDispatch);
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
        if (!count) return E_POINTER;
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override {
        return description_.GetInfo(index, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) noexcept override {
        return description_.GetIds(iid, names, count, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception,
                                     UINT* argument) noexcept override {
        return description_.Invoke(this, id, iid, flags, parameters, result, exception, argument);
    }

private:
    Description description_{__uuidof(Interface)};
};

}  // namespace recoveryui::com
