#pragma once

#include <span>
#include <string>

#include "model/RowRules.h"

namespace recoveryui::manager {

using model::kNoRow;

// After a scenario was deleted from `row` and the list refilled.
inline int RowAfterDelete(int row, int remaining) {
    return model::RowAfterRemoval(row, remaining);
}

// After a paste: the last row.
inline int RowAfterPaste(int rows) {
    return rows - 1;
}

// After the wizard stored a scenario under `name`: its row.
int RowAfterWizard(std::span<const std::wstring> names, const std::wstring& name);

}  // namespace recoveryui::manager
