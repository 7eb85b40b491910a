#pragma once

#include "RecoveryUI.h"

namespace recoveryui::model {

// Whether the host application says yes to its host mode; no without one that answers.
bool HostModeSaysYes(IObjectRack* rack);

}  // namespace recoveryui::model
