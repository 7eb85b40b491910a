// The creatable class of the Add Recovery Scenario dialog.
#pragma once

#include <windows.h>

namespace recoveryui::settings {

// A new `RecoveryAddDlg`, queried for an interface. The out-argument is null on failure.
HRESULT CreateRecoveryAddDlg(REFIID iid, void** object) noexcept;

}  // namespace recoveryui::settings
