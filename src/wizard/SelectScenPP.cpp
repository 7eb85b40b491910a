#include "wizard/SelectScenPP.h"

#include "resources/ids.h"
#include "ui/Radio.h"
#include "wizard/TriggerChoice.h"

namespace recoveryui::wizard {
namespace {
constexpr ui::RadioGroup kRadios{IDC_SELECT_TRIGGER_POPUP, IDC_SELECT_TRIGGER_CRASH};
}

SelectScenPP::SelectScenPP(WizardPS& sheet) : WizardPPBase(sheet, IDD_SELECT_TRIGGER, true) {}

void SelectScenPP::OnInit() {
    WizardPPBase::OnInit();
    long kind = 0;
    std::optional<std::int32_t> known;
    IRecoveryTrigger* const trigger = State().trigger.Get();
    if (trigger && SUCCEEDED(trigger->GetTriggerKind(&kind))) known = kind;
    kRadios.Choose(Window(), InitialTriggerRadio(trigger != nullptr, known));
}

Leave SelectScenPP::OnNext() {
    const auto kind = TriggerKindAt(kRadios.Chosen(Window()));
    return kind ? Leave::To(FirstTriggerPage(*kind)) : Leave::Stay;
}

}  // namespace recoveryui::wizard
