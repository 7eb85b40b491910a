#include "wizard/SummaryPP.h"

#include "com/Guard.h"
#include "model/HostMode.h"
#include "resources/ids.h"
#include "shell/Rack.h"
#include "ui/Messages.h"
#include "ui/Strings.h"
#include "ui/Window.h"
#include "wizard/AppendFunctions.h"
#include "wizard/Commit.h"
#include "wizard/Summary.h"

namespace recoveryui::wizard {
namespace {
constexpr UINT kTabStop = 16;  // in dialog units: what the summary indents
}

SummaryPP::SummaryPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_SUMMARY, true) {}

void SummaryPP::OnInit() {
    WizardPPBase::OnInit();
    const bool editing = State().scenario != nullptr;
    ui::Show(Item(IDC_SUMMARY_ADD_CURRENT), !editing);
    ui::Show(Item(IDC_SUMMARY_ADD_DEFAULT), !editing && !model::HostModeSaysYes(State().rack.Get()));

    const HWND box = Item(IDC_SUMMARY_TEXT);
    SendMessageW(box, EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&kTabStop));
    ui::SetText(box, Summary());
}

std::wstring SummaryPP::Summary() const {
    SummaryContent content;
    long kind = 0;
    if (State().trigger) {
        com::Check(State().trigger->GetTriggerKind(&kind));
        content.trigger = kind;
    }
    for (const auto& operation : State().operations) {
        com::Check(operation->GetOperationKind(&kind));
        content.operations.push_back(kind);
    }
    content.restart = State().restartWindows;
    content.option = State().postRecoveryOption;
    return BuildSummary(content, ui::LoadText).value_or(std::wstring());
}

bool SummaryPP::OnFinish() {
    std::vector<std::wstring> notWritten;
    {
        const ui::WaitCursor wait;
        State().scenario = MakeScenario(State());
        State().addToCurrent = ui::IsChecked(Item(IDC_SUMMARY_ADD_CURRENT));
        State().addToDefault = ui::IsChecked(Item(IDC_SUMMARY_ADD_DEFAULT));
        notWritten = AppendNewFunctions(State().newFunctions, State().rack.Get());
    }
    for (const std::wstring& library : notWritten)
        ui::ShowMessage(Window(), ui::FormatText(IDS_LIBRARY_NOT_WRITTEN, {library}));
    return true;
}

}  // namespace recoveryui::wizard
