// The creatable class that shows the Manager.
#pragma once

#include "RecoveryUI.h"
#include "com/Dual.h"
#include "com/Object.h"
#include "shell/Rack.h"

namespace recoveryui::manager {

class RecoveryDlg final : public com::Object<RecoveryDlg, com::Dual<IRecoveryDlg>, shell::RackClient> {
public:
    // E_FAIL without a rack, else S_OK whatever the user did.
    HRESULT STDMETHODCALLTYPE DoModal() noexcept override;
};

}  // namespace recoveryui::manager
