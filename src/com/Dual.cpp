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

}  // namespace recoveryui::com
