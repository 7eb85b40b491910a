#include "shell/RecoveryPPSpecifier.h"

#include <ocidl.h>

#include "com/Dual.h"
#include "shell/Rack.h"

namespace recoveryui::shell {
namespace {

class RecoveryPPSpecifier final : public com::Object<RecoveryPPSpecifier, ISpecifyPropertyPages, RackClient,
                                                     com::Dual<IObjectRackClient, IDispatch>> {
public:
    HRESULT STDMETHODCALLTYPE GetPages(CAUUID* pages) noexcept override {
        if (!pages) return E_POINTER;
        pages->cElems = 0;
        pages->pElems = static_cast<GUID*>(CoTaskMemAlloc(sizeof(GUID)));
        if (!pages->pElems) return E_OUTOFMEMORY;
        pages->cElems = 1;
        pages->pElems[0] = CLSID_RecoveryPP;
        return S_OK;
    }
};

}  // namespace

HRESULT CreateRecoveryPPSpecifier(REFIID iid, void** object) noexcept {
    return RecoveryPPSpecifier::Create(iid, object);
}

}  // namespace recoveryui::shell
