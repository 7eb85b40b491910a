#pragma once

#include "wizard/ClickChoice.h"
#include "wizard/PointingHand.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Asks for one keyboard or mouse operation: ENTER, ESCAPE, a button by its label, or a key combination.
class OperationClickPP final : public WizardPPBase {
public:
    explicit OperationClickPP(WizardPS& sheet);

private:
    void OnInit() override;
    bool OnCommand(const ui::Command& command) override;
    Leave OnNext() override;
    void OnHelp() override;

    ClickChoice Choice() const;
    void Refresh();  // enabling and Next follow the choice
    void OnPointingHand();
    Leave AddKeys(const std::vector<std::uint32_t>& sequence);
    Leave AddKeyCombination();
    Leave AddButtonClick();

    PointingHand hand_;
};

}  // namespace recoveryui::wizard
