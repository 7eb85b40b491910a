#pragma once

#include "wizard/PointingHand.h"
#include "wizard/PopupConditions.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// The controls of one of the page's conditions.
struct ConditionControls {
    HWND check = nullptr;
    HWND value = nullptr;
    HWND regex = nullptr;
};

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

    ConditionControls title_;
    ConditionControls text_;
    PointingHand hand_;
};

}  // namespace recoveryui::wizard
