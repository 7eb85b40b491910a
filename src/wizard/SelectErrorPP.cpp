#include "wizard/SelectErrorPP.h"

#include "com/Create.h"
#include "resources/ids.h"
#include "support/ReplayErrors.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::wizard {

SelectErrorPP::SelectErrorPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_SELECT_ERROR) {}

void SelectErrorPP::OnInit() {
    WizardPPBase::OnInit();
    FillErrors();
    SelectTriggersError();
}

// The list sorts; each entry carries its code.
void SelectErrorPP::FillErrors() const {
    const HWND list = Item(IDC_SELECT_ERROR_LIST);
    for (const support::ReplayError& error : support::ReplayErrors()) {
        const LRESULT index = SendMessageW(list, CB_ADDSTRING, 0,
                                           reinterpret_cast<LPARAM>(ui::LoadText(error.labelId).c_str()));
        SendMessageW(list, CB_SETITEMDATA, static_cast<WPARAM>(index), error.code);
    }
}

void SelectErrorPP::SelectTriggersError() {
    if (KindOfTrigger() != model::TriggerKind::Error) return;
    const auto trigger = com::Query<IErrorRecoveryTrigger>(State().trigger.Get());
    long code = 0;
    if (!trigger || FAILED(trigger->GetErrorCode(&code))) return;
    const HWND list = Item(IDC_SELECT_ERROR_LIST);
    for (LRESULT index = 0; const auto known = CodeAt(index); ++index) {
        if (*known != code) continue;
        SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
        ShowSelection();
        return;
    }
}

// Nothing for an index outside the list.
std::optional<std::int32_t> SelectErrorPP::CodeAt(LRESULT index) const {
    const HWND list = Item(IDC_SELECT_ERROR_LIST);
    if (index < 0 || index >= SendMessageW(list, CB_GETCOUNT, 0, 0)) return std::nullopt;
    return static_cast<std::int32_t>(SendMessageW(list, CB_GETITEMDATA, static_cast<WPARAM>(index), 0));
}

LRESULT SelectErrorPP::Selected() const {
    return SendMessageW(Item(IDC_SELECT_ERROR_LIST), CB_GETCURSEL, 0, 0);
}

void SelectErrorPP::ShowSelection() {
    const auto code = CodeAt(Selected());
    const support::ReplayError* const error = code ? support::FindReplayError(*code) : nullptr;
    if (!error) return;
    ui::SetText(Item(IDC_SELECT_ERROR_DESCRIPTION), ui::LoadText(error->descriptionId));
    SetCanAdvance(true);
}

bool SelectErrorPP::OnCommand(const ui::Command& command) {
    if (command.id != IDC_SELECT_ERROR_LIST || command.code != CBN_SELCHANGE)
        return WizardPPBase::OnCommand(command);
    ShowSelection();
    return true;
}

Leave SelectErrorPP::OnNext() {
    const auto code = CodeAt(Selected());
    if (!code) return Leave::Stay;
    com::Ptr<IErrorRecoveryTrigger> trigger;
    com::Check(com::Create(L"Vantrel.ErrorRecoveryTrigger", trigger));
    com::Check(trigger->SetErrorCode(*code));
    return TakeTrigger(trigger.Get());
}

}  // namespace recoveryui::wizard
