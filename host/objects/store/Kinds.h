// The general interfaces of triggers and operations: what kind an object is.
#pragma once

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

// `HostObject<Thing, IThing, KindOfTrigger<Thing, 1>>`
template <class Derived, long kKind>
class KindOfTrigger : public IRecoveryTrigger {
public:
    static bool Answers(REFIID iid) noexcept { return IsEqualIID(iid, __uuidof(IRecoveryTrigger)); }
    HRESULT STDMETHODCALLTYPE GetTriggerKind(long* kind) noexcept override {
        return JournalCall(Derived::kName, L"GetTriggerKind").Give([&] { *kind = kKind; }, kind);
    }

protected:
    ~KindOfTrigger() = default;
};

template <class Derived, long kKind>
class KindOfOperation : public IRecoveryAction {
public:
    static bool Answers(REFIID iid) noexcept { return IsEqualIID(iid, __uuidof(IRecoveryAction)); }
    HRESULT STDMETHODCALLTYPE GetOperationKind(long* kind) noexcept override {
        return JournalCall(Derived::kName, L"GetOperationKind").Give([&] { *kind = kKind; }, kind);
    }

protected:
    ~KindOfOperation() = default;
};

}  // namespace tovarin
