#include "settings/RecoveryAddDlg.h"

#include "com/Dual.h"
#include "com/Object.h"
#include "com/SafeArray.h"
#include "settings/AddScenarioDlg.h"
#include "shell/Rack.h"
#include "ui/ModuleState.h"

namespace recoveryui::settings {
namespace {

class RecoveryAddDlg final : public com::Object<RecoveryAddDlg, com::Dual<IRecoveryAddDlg>,
                                                com::Dual<IRecoveryDlg>, shell::RackClient> {
public:
    HRESULT STDMETHODCALLTYPE get_ScenariosNames(VARIANT* names) noexcept override {
        if (!names) return E_POINTER;
        VariantInit(names);
        return com::Guarded([&] {
            com::CVtlSafeArray<BSTR> array;
            com::Check(array.Create(static_cast<ULONG>(chosen_.names.size())));
            for (size_t i = 0; i < chosen_.names.size(); ++i)
                com::Check(array.PutElement(static_cast<LONG>(i), com::Bstr(chosen_.names[i])));
            names->parray = array.Detach();
            names->vt = VT_ARRAY | VT_BSTR;
        });
    }
    HRESULT STDMETHODCALLTYPE get_FilePath(BSTR* path) noexcept override {
        if (!path) return E_POINTER;
        return com::CopyTo(path, chosen_.file);
    }
    // What was chosen before stays when the user cancels.
    HRESULT STDMETHODCALLTYPE DoModal() noexcept override {
        if (!Rack()) return E_FAIL;
        const auto alive = KeepAlive();
        return ui::Enter([&] {
            AddScenarioDlg dialog(Rack());
            if (dialog.ShowModal(ui::ActiveOwner()) != IDOK) return S_FALSE;
            chosen_ = dialog.Chosen();
            return S_OK;
        });
    }

private:
    ChosenScenarios chosen_;
};

}  // namespace

HRESULT CreateRecoveryAddDlg(REFIID iid, void** object) noexcept {
    return RecoveryAddDlg::Create(iid, object);
}

}  // namespace recoveryui::settings
