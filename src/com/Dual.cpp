#include "com/Dual.h"

#include "com/Guard.h"
#include "com/Module.h"

namespace recoveryui::com {
namespace {

// Gives an object that comes as VT_UNKNOWN as a VT_DISPATCH when it can be driven so: scripts take no other.
void PreferDispatch(VARIANT& value) noexcept {
    if (value.vt != VT_UNKNOWN || !value.punkVal) return;
    Ptr<IDispatch> dispatch = Query<IDispatch>(value.punkVal);
    if (!dispatch) return;
    value.punkVal->Release();
    value.pdispVal = dispatch.Detach();
    value.vt = VT_DISPATCH;
}

}  // namespace

HRESULT FindTypeInfo(REFIID iid, ITypeInfo** info) noexcept {
    return Guarded([&] {
        Ptr<ITypeLib> library;
        const HRESULT hr = LoadTypeLib(Module::FileName().c_str(), library.GetAddressOf());
        return SUCCEEDED(hr) ? library->GetTypeInfoOfGuid(iid, info) : hr;
    });
}

HRESULT Description::GetInfo(UINT index, ITypeInfo** info) const noexcept {
    if (!info) return E_POINTER;
    *info = nullptr;
    return index == 0 ? FindTypeInfo(iid_, info) : DISP_E_BADINDEX;
}

HRESULT Description::GetIds(REFIID reserved, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
    if (!names || !ids) return E_POINTER;
    if (!IsEqualIID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    const HRESULT hr = Load();
    return SUCCEEDED(hr) ? DispGetIDsOfNames(info_.Get(), names, count, ids) : hr;
}

HRESULT Description::Invoke(IUnknown* object, DISPID id, REFIID reserved, WORD flags, DISPPARAMS* parameters,
                            VARIANT* result, EXCEPINFO* exception, UINT* argument) noexcept {
    if (!IsEqualIID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    if (!parameters) return E_POINTER;
    Ptr<IUnknown> view;
    HRESULT hr = Load();
    if (SUCCEEDED(hr)) hr = object->QueryInterface(iid_, reinterpret_cast<void**>(view.GetAddressOf()));
    if (FAILED(hr)) return hr;
    // A script puts an object by reference; the interfaces know one way to put.
    if (flags & DISPATCH_PROPERTYPUTREF) flags = DISPATCH_PROPERTYPUT;
    hr = DispInvoke(view.Get(), info_.Get(), id, flags, parameters, result, exception, argument);
    if (SUCCEEDED(hr) && result) PreferDispatch(*result);
    return hr;
}

}  // namespace recoveryui::com
