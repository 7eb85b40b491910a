// The wizard's sheet: fifteen pages around one state.
#pragma once

#include "ui/PropertySheet.h"
#include "wizard/WizardState.h"

namespace recoveryui::wizard {

class WizardPS final : public ui::PropertySheet {
public:
    WizardPS();

    WizardState& State() noexcept { return state_; }
    // Takes trigger, operations, option, name and description over from an existing scenario. The restart
    // flag is not derived from the option. E_FAIL when the scenario cannot be edited.
    [[nodiscard]] HRESULT Load(IRecoveryScenario* scenario, std::wstring name);
    // True after Finish. After Cancel the scenario is as it was.
    bool Run(HWND owner);

private:
    WizardState state_;
};

}  // namespace recoveryui::wizard
