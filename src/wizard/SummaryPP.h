#pragma once

#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Shows the scenario in words; Finish makes it.
class SummaryPP final : public WizardPPBase {
public:
    explicit SummaryPP(WizardPS& sheet);

private:
    void OnInit() override;
    bool OnFinish() override;

    std::wstring Summary() const;
};

}  // namespace recoveryui::wizard
