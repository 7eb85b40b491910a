#pragma once

#include <string>

namespace recoveryui::manager {

// How the wizard's scenario goes into the file.
struct StorePlan {
    bool removeOldFirst = false;
    bool replace = false;
    bool removeOldAfter = false;

    bool operator==(const StorePlan&) const = default;
};

// `editedName` is the name the wizard was opened with, empty for a new scenario. When only
// the case of letters changed, a repository may take both names for the same scenario.
StorePlan PlanStore(const std::wstring& editedName, const std::wstring& newName);

}  // namespace recoveryui::manager
