// The wizard and the properties sheet, as the Manager calls them: created by ProgID like any host does.
#pragma once

#include "manager/RecoveryFile.h"

struct IObjectRack;

namespace recoveryui::manager {

struct WizardResult {
    NamedScenario made;
    bool addToCurrent = false;
    bool addToDefault = false;
};

// Runs the wizard on a file for a new scenario (`edited` empty) or an existing one. S_OK with the result
// after Finish, S_FALSE after Cancel.
[[nodiscard]] HRESULT RunWizard(IObjectRack* rack, IUnknown* repository, const NamedScenario& edited,
                                WizardResult& result);

[[nodiscard]] HRESULT ShowProperties(IObjectRack* rack, const NamedScenario& shown, const std::wstring& file);

}  // namespace recoveryui::manager
