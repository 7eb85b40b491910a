// The creatable class of the Recovery tab.
#pragma once

#include <windows.h>

namespace recoveryui::settings {

// A new `RecoveryPP`, queried for an interface. The out-argument is null on failure.
HRESULT CreateRecoveryPP(REFIID iid, void** object) noexcept;

}  // namespace recoveryui::settings
