// The numbers by which the objects of a scenario say what they are.
#pragma once

#include <cstdint>
#include <optional>

namespace recoveryui::model {

enum class TriggerKind : std::int32_t { ObjectState = 0, PopUp = 1, Error = 2, Crash = 3 };

enum class OperationKind : std::int32_t {
    ClickButton = 0,
    FunctionCall = 1,
    CloseProcesses = 2,
    PressKeys = 3
};

enum class PostRecoveryOption : std::int32_t {
    RepeatStep = 1,
    NextStep = 2,
    NextAction = 3,
    NextIteration = 4,
    RestartRun = 5,
    StopRun = 6,
    RestartWindowsAndRun = 7,
    RestartWindowsAndStop = 8,
};

// From what an object reports; nothing when the value has no meaning.
std::optional<TriggerKind> TriggerKindFrom(std::int32_t value);
std::optional<OperationKind> OperationKindFrom(std::int32_t value);
std::optional<PostRecoveryOption> PostRecoveryOptionFrom(std::int32_t value);

// Whether a finished scenario with this option restarts the operating system.
bool IncludesRestart(PostRecoveryOption option);

}  // namespace recoveryui::model
