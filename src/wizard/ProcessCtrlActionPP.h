#pragma once

#include "process/ProcessPair.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Asks for the processes that one operation closes. The crash trigger's page is the same on another dialog.
class ProcessCtrlActionPP : public WizardPPBase {
public:
    explicit ProcessCtrlActionPP(WizardPS& sheet);

protected:
    ProcessCtrlActionPP(WizardPS& sheet, int templateId);

    void OnInit() override;
    Leave OnNext() override;

    void SetUpPair();
    void AddTips();
    process::ProcessPair& Pair() noexcept { return pair_; }

private:
    void OnActivate() override;
    bool OnCommand(const ui::Command& command) override;
    bool OnNotify(NMHDR& header, LRESULT& answer) override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) override;

    process::ProcessPair pair_;
};

}  // namespace recoveryui::wizard
