#pragma once

#include "RecoveryUI.h"
#include "model/PropertyGrid.h"
#include "ui/Dialog.h"

namespace recoveryui::wizard {

// Which properties identify an object: all of them with their check boxes. OK writes them.
class EditPropertiesDlg final : public ui::Dialog {
public:
    EditPropertiesDlg(ITestObject* object, IObjectRack* rack) noexcept;

private:
    void OnInit() override;
    bool OnCommand(const ui::Command& command) override;
    void OnHelp() override;

    com::Ptr<ITestObject> object_;
    com::Ptr<IObjectRack> rack_;
    model::PropertyGrid grid_;
};

}  // namespace recoveryui::wizard
