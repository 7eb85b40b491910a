// From the wizard's state to a scenario object.
#pragma once

#include "wizard/WizardState.h"

namespace recoveryui::wizard {

// A new scenario that holds option, trigger, operations and description. Throws HResultError at the first
// step that fails; the state is not changed.
com::Ptr<IRecoveryScenario> MakeScenario(const WizardState& state);

}  // namespace recoveryui::wizard
