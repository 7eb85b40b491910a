// IDispatch for an interface, from its description in the type library in the module's resources.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include "com/Ptr.h"

namespace recoveryui::com {

// The description of an interface in the module's own type library.
HRESULT FindTypeInfo(REFIID iid, ITypeInfo** info) noexcept;

// Gives an object that comes as VT_UNKNOWN as a VT_DISPATCH when it can be driven so: scripts take no other.
void PreferDispatch(VARIANT& value) noexcept;

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
        if (!info) return E_POINTER;
        *info = nullptr;
        return index == 0 ? FindTypeInfo(__uuidof(Interface), info) : DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) noexcept override {
        if (!names || !ids) return E_POINTER;
        if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
        const HRESULT hr = LoadInfo();
        return SUCCEEDED(hr) ? DispGetIDsOfNames(info_.Get(), names, count, ids) : hr;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* argument) noexcept override {
        if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
        if (!parameters) return E_POINTER;
        const HRESULT hr = LoadInfo();
        if (FAILED(hr)) return hr;
        // A script puts an object by reference; the interfaces know one way to put.
        if (flags & DISPATCH_PROPERTYPUTREF) flags = DISPATCH_PROPERTYPUT;
        const HRESULT invoked = DispInvoke(Query<Interface>(this).Get(), info_.Get(), id, flags, parameters,
                                           result, exception, argument);
        if (SUCCEEDED(invoked) && result) PreferDispatch(*result);
        return invoked;
    }

private:
    HRESULT LoadInfo() noexcept { return info_ ? S_OK : FindTypeInfo(__uuidof(Interface), info_.GetAddressOf()); }

    Ptr<ITypeInfo> info_;
};

}  // namespace recoveryui::com
