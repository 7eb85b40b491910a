// The scenario under construction. Lives exactly as long as the wizard's sheet; the pages share it.
#pragma once

#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "RecoveryUI.h"
#include "com/Ptr.h"
#include "com/SafeArray.h"
#include "wizard/IdentificationSnapshot.h"
#include "wizard/NewFunctions.h"

namespace recoveryui::wizard {

struct WizardState {
    com::Ptr<IObjectRack> rack;
    com::Ptr<IRecoveryRepository> repository;
    // The scenario being edited, if any; after Finish the new one.
    com::Ptr<IRecoveryScenario> scenario;

    com::Ptr<IRecoveryTrigger> trigger;
    std::vector<com::Ptr<IRecoveryAction>> operations;
    NewFunctionList newFunctions;
    bool restartWindows = false;
    long postRecoveryOption = 0;
    std::wstring name;
    std::wstring description;

    // From the top-level parent down to the object that was clicked.
    com::CVtlSafeArray<VARIANT> objectHierarchy;
    // That of the scenario being edited, for Cancel.
    IdentificationSnapshot originalIdentification;

    bool addToCurrent = false;
    bool addToDefault = false;
};

}  // namespace recoveryui::wizard
