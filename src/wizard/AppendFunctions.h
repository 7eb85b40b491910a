// Writing the functions that were defined in the wizard to the ends of their libraries.
#pragma once

#include <string>
#include <vector>

#include "RecoveryUI.h"
#include "wizard/NewFunctions.h"

namespace recoveryui::wizard {

// In order of definition. A library that cannot be opened is skipped; one that cannot be located ends the
// appending; neither is reported. Gives the libraries that could be opened but not be written (a full disk):
// they are as they were. What has been dealt with leaves the list, so that after an exception the rest can be
// tried again.
std::vector<std::wstring> AppendNewFunctions(NewFunctionList& functions, IObjectRack* rack);

}  // namespace recoveryui::wizard
