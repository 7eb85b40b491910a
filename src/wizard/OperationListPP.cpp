#include "wizard/OperationListPP.h"

#include <utility>

#include "model/FileLocator.h"
#include "model/OperationsList.h"
#include "ui/ListKeys.h"
#include "ui/Window.h"

namespace recoveryui::wizard {
namespace {

constexpr int kButtonIconSize = 16;

int CommandOf(WPARAM key, bool alt) noexcept {
    switch (key) {
        case VK_UP: return alt ? IDC_OPERATION_LIST_UP : 0;
        case VK_DOWN: return alt ? IDC_OPERATION_LIST_DOWN : 0;
        case VK_DELETE: return alt ? 0 : IDC_OPERATION_LIST_DELETE;
        default: return 0;
    }
}

}  // namespace

OperationListPP::OperationListPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_OPERATION_LIST, true) {}

void OperationListPP::OnInit() {
    WizardPPBase::OnInit();
    SetButtonIcon(IDC_OPERATION_LIST_UP, IDI_MOVE_UP, kButtonIconSize);
    SetButtonIcon(IDC_OPERATION_LIST_DOWN, IDI_MOVE_DOWN, kButtonIconSize);
    SetButtonIcon(IDC_OPERATION_LIST_DELETE, IDI_DELETE, kButtonIconSize);
    AddTip(IDC_OPERATION_LIST_UP, IDS_TIP_MOVE_UP);
    AddTip(IDC_OPERATION_LIST_DOWN, IDS_TIP_MOVE_DOWN);
    AddTip(IDC_OPERATION_LIST_DELETE, IDS_TIP_DELETE);
    model::SetUpOperationsList(Rows());
    ui::PutBefore(Rows().Window(), &ui::KeysToCommands<&CommandOf>);
}

void OperationListPP::OnActivate() {
    Fill(Rows().Selected());
    ShowNoteOrCheckBox();
}

model::OperationList OperationListPP::Order() const {
    return {State().operations.size(), State().restartWindows};
}

void OperationListPP::Fill(int selected) {
    model::FillOperationsList(Rows(), State().operations, State().restartWindows, State().rack.Get());
    Rows().Select(std::min(selected, Rows().Count() - 1));
}

// The note stands in the place of the check box while there is nothing to add another one to.
void OperationListPP::ShowNoteOrCheckBox() {
    const bool empty = Order().Rows() == 0;
    if (empty) ui::SetChecked(Item(IDC_OPERATION_LIST_ANOTHER), true);
    ui::Show(Item(IDC_OPERATION_LIST_ANOTHER), !empty);
    ui::Show(Item(IDC_OPERATION_LIST_NOTE), empty);
}

bool OperationListPP::OnCommand(const ui::Command& command) {
    if (command.code != BN_CLICKED) return WizardPPBase::OnCommand(command);
    switch (command.id) {
        case IDC_OPERATION_LIST_UP:
        case IDC_OPERATION_LIST_DOWN: Move(command.id == IDC_OPERATION_LIST_UP); return true;
        case IDC_OPERATION_LIST_DELETE: Delete(); return true;
        default: return WizardPPBase::OnCommand(command);
    }
}

void OperationListPP::Move(bool up) {
    const int selected = Rows().Selected();
    if (selected < 0) return;
    const auto row = static_cast<size_t>(selected);
    const auto other = up ? model::SwapUp(Order(), row) : model::SwapDown(Order(), row);
    // Rows end before an operation of unknown kind: nothing changes places with what is not shown.
    if (other && static_cast<int>(*other) < Rows().Count()) {
        std::swap(State().operations[row], State().operations[*other]);
        Fill(static_cast<int>(*other));
    }
    SetFocus(Rows().Window());
}

void OperationListPP::Delete() {
    const int selected = Rows().Selected();
    if (selected < 0) return;
    const auto row = static_cast<size_t>(selected);
    switch (model::DeletionOf(Order(), row)) {
        case model::Deletion::Restart: State().restartWindows = false; break;
        case model::Deletion::Operation:
            ForgetNewFunction(State().operations[row].Get());
            State().operations.erase(State().operations.begin() + selected);
            break;
        case model::Deletion::None: return;
    }
    Fill(selected);
    ShowNoteOrCheckBox();
}

// A function that was written for this call alone must not reach its library at Finish.
void OperationListPP::ForgetNewFunction(IRecoveryAction* operation) {
    const auto call = com::Query<IFunctionCallRecoveryAction>(operation);
    com::Bstr library, name;
    if (!call || FAILED(call->GetLibraryPath(library.Put())) || FAILED(call->GetFunctionName(name.Put())))
        return;
    State().newFunctions.Drop(model::FullPath(State().rack.Get(), library.Text()), name.Text());
}

Leave OperationListPP::OnNext() {
    const bool addAnother = ui::IsChecked(Item(IDC_OPERATION_LIST_ANOTHER));
    return Leave::To(PageAfterOperationList(Order().Rows() == 0, addAnother));
}

Leave OperationListPP::OnBack() {
    const auto trigger = KindOfTrigger();
    return Leave::To(trigger ? LastTriggerPage(*trigger) : IDD_SELECT_TRIGGER);
}

}  // namespace recoveryui::wizard
