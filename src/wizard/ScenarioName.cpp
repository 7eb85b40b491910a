#include "wizard/ScenarioName.h"

#include "support/Text.h"

namespace recoveryui::wizard {

bool IsScenarioName(std::wstring_view name) {
    return !name.empty();
}

bool NeedsCheck(std::wstring_view name, std::wstring_view initialName) {
    return !support::EqualIgnoringCase(name, initialName);
}

}  // namespace recoveryui::wizard
