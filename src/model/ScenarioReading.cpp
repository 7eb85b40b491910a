#include "model/ScenarioReading.h"

#include "HostInterfaces.h"
#include "com/Bstr.h"
#include "com/SafeArray.h"

namespace recoveryui::model {
namespace {

IUnknown* ObjectIn(const com::Variant& element) {
    return element.Object();
}
IUnknown* ObjectIn(const com::Ptr<IUnknown>& element) {
    return element.Get();
}

template <class Element>
HRESULT Append(const com::CVtlSafeArray<Element>& array, std::vector<com::Ptr<IUnknown>>& elements) {
    const HRESULT hr = array.Verify();
    if (FAILED(hr)) return hr;
    return array.ForEach([&](const auto& element) { elements.emplace_back(ObjectIn(element)); });
}

}  // namespace

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

HRESULT ReadOperationElements(IRecoveryScenario& scenario, std::vector<com::Ptr<IUnknown>>& elements) {
    com::CVtlSafeArray<IUnknown*> array;
    const HRESULT hr = scenario.GetOperations(array.Put());
    if (FAILED(hr) || array.IsNull()) return hr;
    VARTYPE type = VT_EMPTY;
    if (FAILED(SafeArrayGetVartype(array.Get(), &type)) || type != VT_VARIANT) return Append(array, elements);
    return Append(com::CVtlSafeArray<VARIANT>(array.Detach()), elements);
}

}  // namespace recoveryui::model
