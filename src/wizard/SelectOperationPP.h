#pragma once

#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Asks for the type of one more operation. The restart is only a flag of the sheet, no object.
class SelectOperationPP final : public WizardPPBase {
public:
    explicit SelectOperationPP(WizardPS& sheet);

private:
    void OnInit() override;
    void OnActivate() override;
    Leave OnNext() override;
};

}  // namespace recoveryui::wizard
