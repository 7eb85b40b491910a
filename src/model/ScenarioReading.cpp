#include "model/ScenarioReading.h"

#include "HostInterfaces.h"
#include "com/Bstr.h"
#include "com/Ptr.h"

namespace recoveryui::model {

std::wstring DescriptionOf(IUnknown* object) {
    const auto scenario = com::Query<IRecoveryScenario>(object);
    com::Bstr description;
    if (!scenario || FAILED(scenario->GetDescription(description.Put()))) return {};
    return description.Text();
}

std::optional<TriggerKind> TriggerKindOf(IUnknown* object) {
    const auto scenario = com::Query<IRecoveryScenario>(object);
    com::Ptr<IUnknown> part;
    if (!scenario || FAILED(scenario->GetTrigger(part.GetAddressOf()))) return std::nullopt;
    const auto trigger = com::Query<IRecoveryTrigger>(part.Get());
    long kind = -1;
    if (!trigger || FAILED(trigger->GetTriggerKind(&kind))) return std::nullopt;
    return TriggerKindFrom(static_cast<std::int32_t>(kind));
}

}  // namespace recoveryui::model
