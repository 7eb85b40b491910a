#include "manager/StorePlan.h"

#include "support/Text.h"

namespace recoveryui::manager {

StorePlan PlanStore(const std::wstring& editedName, const std::wstring& newName) {
    if (editedName.empty()) return {};
    if (editedName == newName) return {.replace = true};
    const bool sameLetters = support::EqualIgnoringCase(editedName, newName);
    return {.removeOldFirst = sameLetters, .replace = true, .removeOldAfter = !sameLetters};
}

}  // namespace recoveryui::manager
