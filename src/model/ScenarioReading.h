// What windows show of a scenario.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include <optional>
#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "com/Ptr.h"
#include "model/Kinds.h"

namespace recoveryui::model {

// Empty for none, and for what is no scenario.
std::wstring DescriptionOf(IUnknown* scenario);
// Nothing when the trigger is missing or of no known kind.
std::optional<TriggerKind> TriggerKindOf(IUnknown* scenario);
// The elements of the scenario's array of operations in order, empty ones included; which of them count is
// the reader's rule. No array is an empty one.
[[nodiscard]] HRESULT ReadOperationElements(IRecoveryScenario& scenario,
                                            std::vector<com::Ptr<IUnknown>>& elements);

}  // namespace recoveryui::model
