#include "wizard/ProcessCtrlActionPP.h"

#include "com/Create.h"
#include "resources/ids.h"

namespace recoveryui::wizard {
namespace {
constexpr int kButtonIconSize = 16;
}

ProcessCtrlActionPP::ProcessCtrlActionPP(WizardPS& sheet) : ProcessCtrlActionPP(sheet, IDD_CLOSE_PROCESSES) {}

ProcessCtrlActionPP::ProcessCtrlActionPP(WizardPS& sheet, int templateId)
    : WizardPPBase(sheet, templateId), pair_([this](bool ready) { SetCanAdvance(ready); }) {}

void ProcessCtrlActionPP::OnInit() {
    SetUpPair();
    AddTips();
}

void ProcessCtrlActionPP::SetUpPair() {
    WizardPPBase::OnInit();
    SetButtonIcon(IDC_PROCESSES_NEW, IDI_ADD, kButtonIconSize);
    SetButtonIcon(IDC_PROCESSES_REMOVE, IDI_REMOVE, kButtonIconSize);
    pair_.Attach(Window());
}

void ProcessCtrlActionPP::AddTips() {
    AddTip(IDC_PROCESSES_NEW, IDS_TIP_ADD_PROCESS);
    AddTip(IDC_PROCESSES_REMOVE, IDS_TIP_REMOVE_PROCESS);
}

void ProcessCtrlActionPP::OnActivate() {
    pair_.FillRunning();
}

bool ProcessCtrlActionPP::OnCommand(const ui::Command& command) {
    return pair_.OnCommand(command) || WizardPPBase::OnCommand(command);
}

bool ProcessCtrlActionPP::OnNotify(NMHDR& header, LRESULT& answer) {
    return pair_.OnNotify(header, answer) || WizardPPBase::OnNotify(header, answer);
}

bool ProcessCtrlActionPP::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
    return pair_.OnMessage(message) || WizardPPBase::OnMessage(message, wParam, lParam, answer);
}

Leave ProcessCtrlActionPP::OnNext() {
    com::Ptr<IProcessControlRecoveryAction> operation;
    com::Check(com::Create(L"Vantrel.ProcessControlRecoveryAction", operation));
    SAFEARRAY* const names = pair_.BuildResult();
    if (!names) return Leave::Stay;
    com::Check(operation->SetProcessNames(names));
    const Leave leave = AddOperation(operation.Get());
    pair_.Clear();
    return leave;
}

}  // namespace recoveryui::wizard
