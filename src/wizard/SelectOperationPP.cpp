#include "wizard/SelectOperationPP.h"

#include "resources/ids.h"
#include "ui/Radio.h"
#include "ui/Window.h"

namespace recoveryui::wizard {
namespace {
constexpr ui::RadioGroup kRadios{IDC_SELECT_OPERATION_CLICK, IDC_SELECT_OPERATION_RESTART};
constexpr int kFirst = 0;
}  // namespace

SelectOperationPP::SelectOperationPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_SELECT_OPERATION, true) {}

void SelectOperationPP::OnInit() {
    WizardPPBase::OnInit();
    kRadios.Choose(Window(), kFirst);
}

void SelectOperationPP::OnActivate() {
    const bool offered = !State().restartWindows;
    ui::Show(Item(IDC_SELECT_OPERATION_RESTART), offered);
    ui::Show(Item(IDC_SELECT_OPERATION_NOTE), offered);
}

Leave SelectOperationPP::OnNext() {
    const int chosen = kRadios.Chosen(Window());
    if (chosen < 0) return Leave::Stay;
    const auto choice = static_cast<OperationChoice>(chosen);
    // A trigger of no known kind has no prototype to offer.
    if (choice == OperationChoice::FunctionCall && !KindOfTrigger()) return Leave::Stay;
    if (choice == OperationChoice::RestartWindows) {
        State().restartWindows = true;
        // Its radio button is about to be hidden; a hidden choice would leave the next visit without one.
        kRadios.Choose(Window(), kFirst);
    }
    return Leave::To(PageAfterOperationChoice(choice));
}

}  // namespace recoveryui::wizard
