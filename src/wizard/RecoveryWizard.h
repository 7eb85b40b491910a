// The creatable class of the wizard.
#pragma once

#include <windows.h>

namespace recoveryui::wizard {

// A new `RecoveryWizard`, queried for an interface. The out-argument is null on failure.
HRESULT CreateRecoveryWizard(REFIID iid, void** object) noexcept;

}  // namespace recoveryui::wizard
