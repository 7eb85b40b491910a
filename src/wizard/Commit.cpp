#include "wizard/Commit.h"

#include "com/Create.h"
#include "com/Guard.h"

namespace recoveryui::wizard {
namespace {

com::CVtlSafeArray<IUnknown*> ArrayOf(const std::vector<com::Ptr<IRecoveryAction>>& operations) {
    com::CVtlSafeArray<IUnknown*> array;
    com::Check(array.Create(static_cast<ULONG>(operations.size())));
    LONG index = 0;
    for (const auto& operation : operations)
        com::Check(array.PutElement(index++, com::Ptr<IUnknown>(operation.Get())));
    return array;
}

}  // namespace

com::Ptr<IRecoveryScenario> MakeScenario(const WizardState& state) {
    com::Ptr<IRecoveryScenario> scenario;
    com::Check(com::Create(L"Vantrel.ReplayRecoveryScenario", scenario));
    com::Check(scenario->SetPostRecoveryOption(state.postRecoveryOption));
    com::Check(scenario->SetTrigger(state.trigger.Get()));
    com::Check(scenario->SetOperations(ArrayOf(state.operations).Get()));
    com::Check(scenario->SetDescription(com::Bstr(state.description).Get()));
    return scenario;
}

}  // namespace recoveryui::wizard
