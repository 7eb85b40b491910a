#include "objects/store/ReplayRecoveryScenario.h"

#include "objects/store/Arrays.h"
#include "objects/store/ObjectStateRecoveryTrigger.h"
#include "objects/store/Operations.h"
#include "objects/store/Triggers.h"

namespace tovarin {
namespace {

// Which object stands for which record.
struct MakePart {
    template <class Thing, class Record>
    static com::Ptr<IUnknown> As(const Record& record) {
        return Thing::Make(record)->KeepAlive();
    }
    com::Ptr<IUnknown> operator()(std::monostate) const { return nullptr; }
    com::Ptr<IUnknown> operator()(const store::PopUpTrigger& r) const { return As<PopUpRecoveryTrigger>(r); }
    com::Ptr<IUnknown> operator()(const store::ErrorTrigger& r) const { return As<ErrorRecoveryTrigger>(r); }
    com::Ptr<IUnknown> operator()(const store::CrashTrigger& r) const { return As<CrashRecoveryTrigger>(r); }
    com::Ptr<IUnknown> operator()(const store::ObjectStateTrigger& r) const {
        return As<ObjectStateRecoveryTrigger>(r);
    }
    com::Ptr<IUnknown> operator()(const store::PressKeys& r) const {
        return As<KeyBoardSimulatorRecoveryAction>(r);
    }
    com::Ptr<IUnknown> operator()(const store::AccessObject& r) const {
        return As<ObjectAccessorRecoveryAction>(r);
    }
    com::Ptr<IUnknown> operator()(const store::CloseProcesses& r) const {
        return As<ProcessControlRecoveryAction>(r);
    }
    com::Ptr<IUnknown> operator()(const store::CallFunction& r) const {
        return As<FunctionCallRecoveryAction>(r);
    }
};

template <class Part>
void WritePart(IUnknown* object, Part& part) {
    part = {};
    if (object) com::Check(WriteRecord(object, part));
}

}  // namespace

ReplayRecoveryScenario::ReplayRecoveryScenario(const store::Scenario& content)
    : option_(content.postRecoveryOption),
      trigger_(std::visit(MakePart(), content.trigger)),
      description_(content.description) {
    for (const store::Operation& operation : content.operations)
        operations_.push_back(std::visit(MakePart(), operation));
}

HRESULT ReplayRecoveryScenario::GetPostRecoveryOption(long* option) noexcept {
    return Call(L"GetPostRecoveryOption").Give([&] { *option = option_; }, option);
}

HRESULT ReplayRecoveryScenario::SetPostRecoveryOption(long option) noexcept {
    return Call(L"SetPostRecoveryOption", option).Answer([&] { option_ = option; });
}

HRESULT ReplayRecoveryScenario::GetTrigger(IUnknown** trigger) noexcept {
    return Call(L"GetTrigger").Give([&] { return trigger_.CopyTo(trigger); }, trigger);
}

HRESULT ReplayRecoveryScenario::SetTrigger(IUnknown* trigger) noexcept {
    return Call(L"SetTrigger", trigger).Answer([&] { trigger_ = trigger; });
}

HRESULT ReplayRecoveryScenario::GetOperations(SAFEARRAY** operations) noexcept {
    return Call(L"GetOperations").Give([&] { return GiveArray(operations_, operations); }, operations);
}

HRESULT ReplayRecoveryScenario::SetOperations(SAFEARRAY* operations) noexcept {
    return Call(L"SetOperations", operations).Answer([&] { return ReadArray(operations, operations_); });
}

HRESULT ReplayRecoveryScenario::GetDescription(BSTR* description) noexcept {
    return Call(L"GetDescription").Give([&] { return com::CopyTo(description, description_); }, description);
}

HRESULT ReplayRecoveryScenario::SetDescription(BSTR description) noexcept {
    return Call(L"SetDescription", description).Answer([&] { description_ = com::ViewOf(description); });
}

HRESULT ReplayRecoveryScenario::get_TriggerKind(long* kind) noexcept {
    return Call(L"get_TriggerKind")
        .Give(
            [&] {
                const auto trigger = com::Query<IRecoveryTrigger>(trigger_.Get());
                if (trigger) return trigger->GetTriggerKind(kind);
                *kind = -1;
                return S_OK;
            },
            kind);
}

HRESULT ReplayRecoveryScenario::get_OperationKinds(VARIANT* kinds) noexcept {
    return Call(L"get_OperationKinds")
        .Give(
            [&] {
                std::vector<long> found;
                for (const auto& operation : operations_) {
                    long& kind = found.emplace_back(-1);
                    if (const auto action = com::Query<IRecoveryAction>(operation.Get()))
                        com::Check(action->GetOperationKind(&kind));
                }
                return GiveVariants(found, kinds);
            },
            kinds);
}

HRESULT ReplayRecoveryScenario::Write(store::Scenario& content) noexcept {
    return com::Guarded([&] {
        store::Scenario written;
        written.postRecoveryOption = option_;
        written.description = description_;
        WritePart(trigger_.Get(), written.trigger);
        for (const auto& operation : operations_)
            WritePart(operation.Get(), written.operations.emplace_back());
        content = std::move(written);
    });
}

}  // namespace tovarin
