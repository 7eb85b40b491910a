// The rules for the name of a scenario.
#pragma once

#include <string_view>

namespace recoveryui::wizard {

// Whether Next is allowed. Blanks count as text.
bool IsScenarioName(std::wstring_view name);

// Whether the recovery file has to be asked for the name: not when it is the name that the scenario had
// when the page opened, in whatever case.
bool NeedsCheck(std::wstring_view name, std::wstring_view initialName);

}  // namespace recoveryui::wizard
