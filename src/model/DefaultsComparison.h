#pragma once

#include <optional>
#include <string>

namespace recoveryui::model {

// Whether "Set as Default" has something to do. An empty string is present, not absent; `Enabled` is
// deliberately left out of the comparison.
inline bool CanSetAsDefault(const std::optional<std::wstring>& current,
                            const std::optional<std::wstring>& defaults) {
    return current != defaults;
}

}  // namespace recoveryui::model
