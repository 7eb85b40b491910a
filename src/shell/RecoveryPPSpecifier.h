// The creatable class that names the component's test-settings page.
#pragma once

#include <windows.h>

namespace recoveryui::shell {

// A new `RecoveryPPSpecifier`, queried for an interface. The out-argument is null on failure.
HRESULT CreateRecoveryPPSpecifier(REFIID iid, void** object) noexcept;

}  // namespace recoveryui::shell
