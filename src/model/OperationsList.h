// The one list of a scenario's operations: in the wizard and in the properties sheet.
#pragma once

#include <span>

#include "HostInterfaces.h"
#include "RecoveryUI.h"
#include "com/Ptr.h"
#include "ui/ListView.h"

namespace recoveryui::model {

// Columns and style, once.
void SetUpOperationsList(const ui::ListView& list);
// Rows for the operations in order, and one for the restart. An operation that cannot say what it is ends
// the list. The rack finds full forms of library paths; it may be null.
void FillOperationsList(const ui::ListView& list, std::span<const com::Ptr<IRecoveryAction>> operations,
                        bool restart, IObjectRack* rack);

}  // namespace recoveryui::model
