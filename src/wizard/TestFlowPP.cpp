#include "wizard/TestFlowPP.h"

#include "resources/ids.h"
#include "ui/Radio.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::wizard {
namespace {
constexpr ui::RadioGroup kRadios{IDC_TEST_FLOW_FIRST, IDC_TEST_FLOW_LAST};
}

TestFlowPP::TestFlowPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_TEST_FLOW, true) {}

HWND TestFlowPP::Button(int choice) const {
    return Item(kRadios.first + choice);
}

void TestFlowPP::OnInit() {
    WizardPPBase::OnInit();
    for (int choice = 0; choice < model::kChoiceCount; ++choice) {
        ui::SetText(Button(choice), ui::LoadText(model::CaptionOf(choice)));
        places_[static_cast<size_t>(choice)] = ui::RectInParent(Button(choice));
    }
    std::optional<std::int32_t> option;
    if (State().scenario) option = State().postRecoveryOption;
    kRadios.Choose(Window(), model::InitialChoice(option, State().restartWindows));
}

void TestFlowPP::OnActivate() {
    const bool restart = State().restartWindows;
    int place = 0;
    for (int choice = 0; choice < model::kChoiceCount; ++choice) {
        const bool offered = model::IsOffered(choice, restart);
        ui::Show(Button(choice), offered);
        // What is offered moves up into the places of what is not.
        if (!offered) continue;
        const RECT& target = places_[static_cast<size_t>(place++)];
        SetWindowPos(Button(choice), nullptr, target.left, target.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    kRadios.Choose(Window(), model::ChoiceOnActivation(kRadios.Chosen(Window()), restart));
}

Leave TestFlowPP::OnNext() {
    const auto option = model::OptionOf(kRadios.Chosen(Window()), State().restartWindows);
    if (!option) return Leave::Stay;
    State().postRecoveryOption = static_cast<long>(*option);
    return GoOn();
}

}  // namespace recoveryui::wizard
