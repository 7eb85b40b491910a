// What every list with a Delete or Remove command has in common.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>

namespace recoveryui::support {

// The row to select after rows have gone, the first of them at `firstRemoved`, when `left` rows remain:
// the one that took its place, or the last one. Nothing when the list is empty.
inline std::optional<std::size_t> RowAfterRemoval(std::size_t firstRemoved, std::size_t left) {
    if (left == 0) return std::nullopt;
    return std::min(firstRemoved, left - 1);
}

}  // namespace recoveryui::support
