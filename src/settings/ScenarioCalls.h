#pragma once

#include <optional>
#include <string>
#include <vector>

#include "RecoveryUI.h"
#include "model/ScenarioAssociation.h"

namespace recoveryui::settings {

struct ChosenScenarios {
    std::wstring file;
    std::vector<std::wstring> names;
};

// Shows the Add dialog. Nothing unless the user chose, or when the dialog gives something else than names.
std::optional<ChosenScenarios> AskForScenarios(IObjectRack* rack);

// Shows the properties sheet of a scenario, unless it cannot be read.
void ShowProperties(IObjectRack* rack, const model::ScenarioAssociation& shown);

}  // namespace recoveryui::settings
