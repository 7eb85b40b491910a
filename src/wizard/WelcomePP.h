#pragma once

#include "resources/ids.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Says what the wizard is for. Nothing to fill in.
class WelcomePP final : public WizardPPBase {
public:
    explicit WelcomePP(WizardPS& sheet) : WizardPPBase(sheet, IDD_WELCOME, true) {}
};

}  // namespace recoveryui::wizard
