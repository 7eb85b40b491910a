// Error codes of the replay engine that a trigger can wait for, and their texts.
#pragma once

#include <cstdint>
#include <span>

namespace recoveryui::support {

struct ReplayError {
    std::int32_t code;
    int labelId;        // string id of its name in the list of errors
    int descriptionId;  // string id of the sentence that explains it
};

// Stands for every error; it is not a code that the engine reports.
inline constexpr std::int32_t kAnyError = 0;

// All of them, in the order in which the list of errors is filled.
std::span<const ReplayError> ReplayErrors();

// The entry of a code, or null for a code that is not known here.
const ReplayError* FindReplayError(std::int32_t code);

}  // namespace recoveryui::support
