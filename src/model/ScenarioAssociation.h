#pragma once

#include <cstdint>
#include <string>

namespace recoveryui::model {

// The activation modes that a record can carry. "Never" is none of them: see Activation.h.
inline constexpr std::int32_t kModeEveryStep = -1;
inline constexpr std::int32_t kModeOnError = 1;

// One scenario associated with a test; a test's list of them is ordered.
struct ScenarioAssociation {
    std::wstring file;
    std::wstring name;
    bool enabled = true;
    std::int32_t ActivationMode = kModeOnError;

    bool operator==(const ScenarioAssociation&) const = default;
};

}  // namespace recoveryui::model
