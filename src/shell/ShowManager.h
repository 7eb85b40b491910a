// The add-in's menu command.
#pragma once

#include "RecoveryUI.h"

namespace recoveryui::shell {

// Opens the Recovery Scenario Manager until it is closed. What the dialog answers is not used; a failure
// says that it could not be opened.
HRESULT ShowManager(IObjectRack* rack) noexcept;

}  // namespace recoveryui::shell
