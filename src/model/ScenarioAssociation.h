#pragma once

#include <cstdint>
#include <string_view>

namespace recoveryui::model {

// The activation modes that a record can carry. "Never" is none of them: see Activation.h.
inline constexpr std::int32_t kModeEveryStep = -1;
inline constexpr std::int32_t kModeOnError = 1;

// One scenario associated with a test; a test's list of them is ordered. The texts belong to whoever holds
// the list: two of its own for each record would cost ten times what reading it takes.
struct ScenarioAssociation {
    std::wstring_view file;
    std::wstring_view name;
    bool enabled = true;
    std::int32_t ActivationMode = kModeOnError;

    bool operator==(const ScenarioAssociation&) const = default;
};

}  // namespace recoveryui::model
