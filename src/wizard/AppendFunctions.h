// Writing the functions that were defined in the wizard to the ends of their libraries.
#pragma once

#include "RecoveryUI.h"
#include "wizard/NewFunctions.h"

namespace recoveryui::wizard {

// In order of definition. A library that cannot be opened is skipped; one that cannot be located ends the
// appending. Nothing is reported.
void AppendNewFunctions(const NewFunctionList& functions, IObjectRack* rack);

}  // namespace recoveryui::wizard
