// One recovery scenario.
#pragma once

#include <vector>

#include "HostInterfaces.h"
#include "HostScripting.h"
#include "com/Dual.h"
#include "objects/HostObject.h"
#include "objects/store/Storable.h"

namespace tovarin {

// Keeps what it is given: any number as option, any object as trigger, empty places among the operations.
// What a recovery file cannot hold fails when the scenario is stored.
class ReplayRecoveryScenario final
    : public HostObject<ReplayRecoveryScenario, IRecoveryScenario, com::Dual<IScriptScenario>,
                        Storable<store::Scenario>> {
public:
    static constexpr const wchar_t* kName = L"RecoveryScenario";
    static constexpr const wchar_t* kProgId = L"Vantrel.ReplayRecoveryScenario";

    ReplayRecoveryScenario() = default;
    explicit ReplayRecoveryScenario(const store::Scenario& content);

    HRESULT STDMETHODCALLTYPE GetPostRecoveryOption(long* option) noexcept override;
    HRESULT STDMETHODCALLTYPE SetPostRecoveryOption(long option) noexcept override;
    // S_OK with no object when there is no trigger.
    HRESULT STDMETHODCALLTYPE GetTrigger(IUnknown** trigger) noexcept override;
    HRESULT STDMETHODCALLTYPE SetTrigger(IUnknown* trigger) noexcept override;
    HRESULT STDMETHODCALLTYPE GetOperations(SAFEARRAY** operations) noexcept override;
    HRESULT STDMETHODCALLTYPE SetOperations(SAFEARRAY* operations) noexcept override;
    HRESULT STDMETHODCALLTYPE GetDescription(BSTR* description) noexcept override;
    HRESULT STDMETHODCALLTYPE SetDescription(BSTR description) noexcept override;
    HRESULT STDMETHODCALLTYPE get_TriggerKind(long* kind) noexcept override;
    HRESULT STDMETHODCALLTYPE get_OperationKinds(VARIANT* kinds) noexcept override;
    HRESULT STDMETHODCALLTYPE Write(store::Scenario& content) noexcept override;

private:
    long option_ = 0;
    com::Ptr<IUnknown> trigger_;
    std::vector<com::Ptr<IUnknown>> operations_;
    std::wstring description_;
};

}  // namespace tovarin
