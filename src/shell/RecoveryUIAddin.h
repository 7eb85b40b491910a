// The creatable class that connects the component to a host's menu and test settings.
#pragma once

#include <windows.h>

namespace recoveryui::shell {

// A new `RecoveryUIAddin`, queried for an interface. The out-argument is null on failure.
HRESULT CreateRecoveryUIAddin(REFIID iid, void** object) noexcept;

}  // namespace recoveryui::shell
