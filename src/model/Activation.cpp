#include "model/Activation.h"

#include "resources/ids.h"

namespace recoveryui::model {

int ActivationText(ActivationItem item) {
    switch (item) {
        case ActivationItem::EveryStep: return IDS_ACTIVATE_EVERY_STEP;
        case ActivationItem::OnError: return IDS_ACTIVATE_ON_ERROR;
        case ActivationItem::Never: return IDS_ACTIVATE_NEVER;
        case ActivationItem::None: break;
    }
    return 0;
}

std::int32_t ActivationItemValue(ActivationItem item) {
    switch (item) {
        case ActivationItem::EveryStep: return kModeEveryStep;
        case ActivationItem::OnError: return kModeOnError;
        default: return 0;
    }
}

ActivationItem ActivationOnReading(std::optional<std::int32_t> enabled,
                                   std::span<const ScenarioAssociation> records) {
    if (!enabled) return ActivationItem::None;
    if (*enabled == 0) return ActivationItem::Never;
    const bool everyStep = !records.empty() && records.front().ActivationMode == kModeEveryStep;
    return everyStep ? ActivationItem::EveryStep : ActivationItem::OnError;
}

ActivationValues ActivationToWrite(ActivationItem item, std::span<const ScenarioAssociation> records) {
    switch (item) {
        case ActivationItem::EveryStep: return {1, kModeEveryStep};
        case ActivationItem::OnError: return {1, kModeOnError};
        case ActivationItem::Never: return {0, kModeOnError};
        case ActivationItem::None: break;
    }
    return {1, records.empty() ? kModeOnError : records.front().ActivationMode};
}

}  // namespace recoveryui::model
