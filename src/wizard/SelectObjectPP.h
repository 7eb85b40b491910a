#pragma once

#include "model/TestObjects.h"
#include "wizard/PointingHand.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Lets the user point at an object and shows its hierarchy. Next needs an object.
class SelectObjectPP final : public WizardPPBase {
public:
    explicit SelectObjectPP(WizardPS& sheet);

private:
    void OnInit() override;  // from the sheet's trigger, if it is an object-state trigger
    bool OnCommand(const ui::Command& command) override;

    com::Ptr<IDispatch> ObjectOfTrigger() const;
    void OnPointingHand();
    // One of the objects at the point: the only one, or the one that the user chooses. Null after a message
    // or a cancel.
    com::Ptr<IDispatch> ChooseObject(const PointedAt& target);
    com::Variant AskWhichOne(SAFEARRAY* candidates);
    void Take(const model::ObjectChain& chain);

    PointingHand hand_;
};

}  // namespace recoveryui::wizard
