#include "wizard/ScenDescriptionPP.h"

#include "com/Guard.h"
#include "resources/ids.h"
#include "support/RepositoryPath.h"
#include "ui/Messages.h"
#include "ui/Window.h"
#include "wizard/ScenarioName.h"

namespace recoveryui::wizard {

ScenDescriptionPP::ScenDescriptionPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_SCEN_DESCRIPTION) {}

void ScenDescriptionPP::OnInit() {
    WizardPPBase::OnInit();
    if (!State().repository) return;
    if (!State().name.empty()) {
        isDescriptionShown_ = ui::SetText(Item(IDC_SCEN_DESCRIPTION), State().description);
        ui::SetText(Item(IDC_SCEN_NAME), State().name);
        SetCanAdvance(true);
        initialName_ = State().name;
    }
    com::Bstr path;
    if (SUCCEEDED(State().repository->GetFilePath(path.Put())))
        ui::SetText(Item(IDC_SCEN_FILE), support::DisplayForm(path.View()));
}

bool ScenDescriptionPP::OnCommand(const ui::Command& command) {
    if (command.id != IDC_SCEN_NAME || command.code != EN_CHANGE) return WizardPPBase::OnCommand(command);
    SetCanAdvance(IsScenarioName(ui::TextOf(command.control)));
    return true;
}

Leave ScenDescriptionPP::OnNext() {
    if (!State().rack || !State().repository) return Leave::Stay;
    std::wstring name = ui::TextOf(Item(IDC_SCEN_NAME));
    if (NeedsCheck(name, initialName_) && IsTaken(name)) {
        ui::ShowMessage(Window(), IDS_SCENARIO_NAME_TAKEN);
        ui::SelectAllText(Item(IDC_SCEN_NAME));
        return Leave::Stay;
    }
    State().name = std::move(name);
    std::wstring description = ui::TextOf(Item(IDC_SCEN_DESCRIPTION));
    // What could not be shown has not been deleted.
    if (isDescriptionShown_ || !description.empty()) State().description = std::move(description);
    return GoOn();
}

bool ScenDescriptionPP::IsTaken(const std::wstring& name) const {
    VARIANT_BOOL exists = VARIANT_FALSE;
    com::Check(State().repository->ScenarioExists(com::Bstr(name).Get(), &exists));
    return exists != VARIANT_FALSE;
}

}  // namespace recoveryui::wizard
