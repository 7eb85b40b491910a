#include "wizard/EditPropertiesDlg.h"

#include "com/Guard.h"
#include "resources/ids.h"
#include "support/HelpTopics.h"
#include "ui/Help.h"

namespace recoveryui::wizard {

EditPropertiesDlg::EditPropertiesDlg(ITestObject* object, IObjectRack* rack) noexcept
    : Dialog(IDD_EDIT_PROPERTIES), object_(object), rack_(rack) {}

void EditPropertiesDlg::OnInit() {
    grid_.SetUp(Item(IDC_EDIT_PROPERTIES_GRID), model::PropertyGrid::Use::Check);
    grid_.Show(object_.Get(), model::PropertyGrid::Rows::All);
    grid_.List().Select(grid_.At(0) ? 0 : -1);
}

bool EditPropertiesDlg::OnCommand(const ui::Command& command) {
    // An object that refuses keeps the dialog open, with the boxes as the object has them.
    if (command.id == IDOK) com::Check(grid_.WriteTicks());
    return Dialog::OnCommand(command);
}

void EditPropertiesDlg::OnHelp() {
    ui::ShowHelpTopic(Window(), support::topics::kObjectProps, rack_.Get());
}

}  // namespace recoveryui::wizard
