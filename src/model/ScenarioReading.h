// What a list of scenarios shows of each.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include <optional>
#include <string>

#include "model/Kinds.h"

namespace recoveryui::model {

// Empty for none, and for what is no scenario.
std::wstring DescriptionOf(IUnknown* scenario);
// Nothing when the trigger is missing or of no known kind.
std::optional<TriggerKind> TriggerKindOf(IUnknown* scenario);

}  // namespace recoveryui::model
