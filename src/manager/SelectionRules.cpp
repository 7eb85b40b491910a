#include "manager/SelectionRules.h"

#include <algorithm>

namespace recoveryui::manager {

int RowAfterWizard(std::span<const std::wstring> names, const std::wstring& name) {
    const auto row = std::find(names.begin(), names.end(), name);
    return row == names.end() ? kNoRow : static_cast<int>(row - names.begin());
}

}  // namespace recoveryui::manager
