#include "com/Dual.h"

#include "com/Guard.h"
#include "com/Module.h"

namespace recoveryui::com {

HRESULT FindTypeInfo(REFIID iid, ITypeInfo** info) noexcept {
    return Guarded([&] {
        Ptr<ITypeLib> library;
        const HRESULT hr = LoadTypeLib(Module::FileName().c_str(), library.GetAddressOf());
        return SUCCEEDED(hr) ? library->GetTypeInfoOfGuid(iid, info) : hr;
    });
}

void PreferDispatch(VARIANT& value) noexcept {
    if (value.vt != VT_UNKNOWN || !value.punkVal) return;
    Ptr<IDispatch> dispatch = Query<IDispatch>(value.punkVal);
    if (!dispatch) return;
    value.punkVal->Release();
    value.pdispVal = dispatch.Detach();
    value.vt = VT_DISPATCH;
}

}  // namespace recoveryui::com
