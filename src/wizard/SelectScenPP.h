#pragma once

#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Asks for the kind of trigger. The trigger itself is made by the page that follows.
class SelectScenPP final : public WizardPPBase {
public:
    explicit SelectScenPP(WizardPS& sheet);

private:
    void OnInit() override;
    Leave OnNext() override;
};

}  // namespace recoveryui::wizard
