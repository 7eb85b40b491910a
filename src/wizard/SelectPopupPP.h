#pragma once

#include "ui/ToolTips.h"
#include "wizard/PointingHand.h"
#include "wizard/PopupConditions.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Asks what the pop-up looks like. The rule for Next is PopupConditions::Complete.
class SelectPopupPP final : public WizardPPBase {
public:
    explicit SelectPopupPP(WizardPS& sheet);

private:
    void OnInit() override;   // from the sheet's trigger, if it is a pop-up trigger
    Leave OnNext() override;  // a new trigger object on every Next
    bool OnCommand(const ui::Command& command) override;
    HWND FirstFocus() const override;  // where something can be typed

    PopupConditions ReadTrigger(IPopUpRecoveryTrigger& trigger) const;
    PopupConditions Read() const;
    void Show(const PopupConditions& conditions);
    void Validate();  // Next, after every change
    void OnChecked(int check);
    void OnPointingHand();

    PointingHand hand_;
    ui::ToolTips tips_;
};

}  // namespace recoveryui::wizard
