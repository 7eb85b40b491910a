#pragma once

#include "model/OperationOrder.h"
#include "resources/ids.h"
#include "ui/ListView.h"
#include "wizard/WizardPPBase.h"

namespace recoveryui::wizard {

// Shows the operations defined so far, in order, and leads to the next one or on to the end.
class OperationListPP final : public WizardPPBase {
public:
    explicit OperationListPP(WizardPS& sheet);

private:
    void OnInit() override;
    void OnActivate() override;
    bool OnCommand(const ui::Command& command) override;
    Leave OnNext() override;
    Leave OnBack() override;

    ui::ListView Rows() const { return ui::ListView(Item(IDC_OPERATION_LIST_ROWS)); }
    model::OperationList Order() const;
    void Fill(int selected);
    void ShowNoteOrCheckBox();
    void Move(bool up);
    void Delete();
    void ForgetNewFunction(IRecoveryAction* operation);
};

}  // namespace recoveryui::wizard
