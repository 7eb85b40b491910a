// The Manager's commands on one scenario of the file.
#include "manager/ManagerDlg.h"
#include "manager/RecordPause.h"
#include "manager/SelectionRules.h"
#include "manager/WizardCall.h"
#include "resources/ids.h"
#include "ui/Messages.h"

namespace recoveryui::manager {

NamedScenario ManagerDlg::SelectedScenario() const {
    const int row = list_.Selected();
    if (row < 0) return {};
    NamedScenario selected{list_.Names()[static_cast<size_t>(row)], nullptr};
    if (FAILED(file_.Repository().Scenario(selected.name, selected.scenario))) selected.scenario.Reset();
    return selected;
}

void ManagerDlg::NewScenario() {
    RecordPause pause;
    if (!file_.Repository() || FAILED(pause.Begin(rack_.Get()))) return;
    CallWizard({});
}

void ManagerDlg::Edit() {
    const NamedScenario edited = SelectedScenario();
    if (!edited.scenario) return;
    RecordPause pause;
    // Unlike a new scenario, an edit does not need a record manager.
    if (FAILED(pause.Begin(rack_.Get())) && pause.Found()) return;
    CallWizard(edited);
    SetFocus(list_.Window());
}

void ManagerDlg::CallWizard(const NamedScenario& edited) {
    const int row = list_.Selected();
    WizardResult result;
    const bool finished = RunWizard(rack_.Get(), file_.Repository().Get(), edited, result) == S_OK;
    const bool stored = finished && SUCCEEDED(file_.Store(edited, result.made));
    if (stored) {
        added_.Rename(edited.name, result.made.name);
        added_.Add(result.made.name, result.addToCurrent, result.addToDefault);
    }
    Refill();
    SelectRow(stored ? RowAfterWizard(list_.Names(), result.made.name) : row);
}

void ManagerDlg::Properties() {
    const NamedScenario shown = SelectedScenario();
    // The sheet reports nothing that the Manager could act on.
    if (shown.scenario) (void)ShowProperties(rack_.Get(), shown, file_.Path());
}

void ManagerDlg::Copy() {
    NamedScenario selected = SelectedScenario();
    if (!selected.scenario) return;
    clipboard_ = std::move(selected);
    UpdateStates();
}

void ManagerDlg::Paste() {
    const model::Repository& repository = file_.Repository();
    bool exists = false;
    if (FAILED(repository.Exists(clipboard_.name, exists))) return;
    constexpr UINT kAsk = MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2;
    if (exists && ui::ShowMessage(Window(), IDS_SCENARIO_REPLACE, kAsk) != IDYES) return;
    if (FAILED(repository.Add(clipboard_.scenario.Get(), clipboard_.name, true))) return;
    file_.MarkDirty();
    Refill();
    SelectRow(RowAfterPaste(list_.Count()));
    SetFocus(list_.Window());
}

void ManagerDlg::Delete() {
    const int row = list_.Selected();
    if (row < 0) return;
    const std::wstring name = list_.Names()[static_cast<size_t>(row)];
    if (FAILED(file_.Repository().Remove(name))) return;
    added_.Remove(name);
    file_.MarkDirty();
    Refill();
    SelectRow(RowAfterDelete(row, list_.Count()));
}

}  // namespace recoveryui::manager
