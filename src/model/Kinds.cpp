#include "model/Kinds.h"

namespace recoveryui::model {
namespace {

template <typename Kind>
std::optional<Kind> Within(std::int32_t value, Kind first, Kind last) {
    if (value < static_cast<std::int32_t>(first) || value > static_cast<std::int32_t>(last))
        return std::nullopt;
    return static_cast<Kind>(value);
}

}  // namespace

std::optional<TriggerKind> TriggerKindFrom(std::int32_t value) {
    return Within(value, TriggerKind::ObjectState, TriggerKind::Crash);
}

std::optional<OperationKind> OperationKindFrom(std::int32_t value) {
    return Within(value, OperationKind::ClickButton, OperationKind::PressKeys);
}

std::optional<PostRecoveryOption> PostRecoveryOptionFrom(std::int32_t value) {
    return Within(value, PostRecoveryOption::RepeatStep, PostRecoveryOption::RestartWindowsAndStop);
}

bool IncludesRestart(PostRecoveryOption option) {
    return option == PostRecoveryOption::RestartWindowsAndRun ||
           option == PostRecoveryOption::RestartWindowsAndStop;
}

}  // namespace recoveryui::model
