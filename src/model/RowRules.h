// What every list with a Delete or Remove command has in common.
#pragma once

#include <algorithm>

namespace recoveryui::model {

inline constexpr int kNoRow = -1;

// The row to select after `row` was removed and `remaining` rows are left: the one at the same
// position, else the last one.
inline int RowAfterRemoval(int row, int remaining) {
    return std::min(row, remaining - 1);
}

}  // namespace recoveryui::model
