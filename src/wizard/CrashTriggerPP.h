#pragma once

#include "wizard/ProcessCtrlActionPP.h"

namespace recoveryui::wizard {

// Asks for the processes whose unexpected end starts recovery.
class CrashTriggerPP final : public ProcessCtrlActionPP {
public:
    explicit CrashTriggerPP(WizardPS& sheet);

private:
    void OnInit() override;
    Leave OnNext() override;  // a new trigger object on every Next

    bool LoadTrigger();
};

}  // namespace recoveryui::wizard
