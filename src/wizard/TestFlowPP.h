#pragma once

#include <array>

#include "model/PostRecovery.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Asks what the test run does after recovery.
class TestFlowPP final : public WizardPPBase {
public:
    explicit TestFlowPP(WizardPS& sheet);

private:
    void OnInit() override;
    void OnActivate() override;
    Leave OnNext() override;

    HWND Button(int choice) const;

    std::array<RECT, model::kChoiceCount> places_{};  // where the buttons stand without a restart
};

}  // namespace recoveryui::wizard
