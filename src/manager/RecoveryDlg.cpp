#include "manager/RecoveryDlg.h"

#include "manager/ManagerDlg.h"
#include "ui/ModuleState.h"

namespace recoveryui::manager {

HRESULT STDMETHODCALLTYPE RecoveryDlg::DoModal() noexcept {
    if (!Rack()) return E_FAIL;
    const com::Ptr<IUnknown> alive = KeepAlive();
    return ui::Enter([&] {
        ManagerDlg dialog(Rack());
        dialog.ShowModal(ui::ActiveOwner());
    });
}

}  // namespace recoveryui::manager
