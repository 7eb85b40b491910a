#include "objects/store/ObjectStateRecoveryTrigger.h"

#include "objects/store/StoredTestObject.h"

namespace tovarin {

ObjectStateRecoveryTrigger::ObjectStateRecoveryTrigger(const store::ObjectStateTrigger& record)
    : object_(RestoreTestObject(record.objects)), option_(record.option) {}

HRESULT ObjectStateRecoveryTrigger::GetTestObject(ITestObject** object) noexcept {
    return Call(L"GetTestObject").Give([&] { return object_.CopyTo(object); }, object);
}

HRESULT ObjectStateRecoveryTrigger::SetTestObject(ITestObject* object) noexcept {
    return Call(L"SetTestObject", object).Answer([&] { object_ = object; });
}

HRESULT ObjectStateRecoveryTrigger::GetObjectStateOption(long* option) noexcept {
    return Call(L"GetObjectStateOption").Give([&] { *option = option_; }, option);
}

HRESULT ObjectStateRecoveryTrigger::SetObjectStateOption(long option) noexcept {
    return Call(L"SetObjectStateOption", option).Answer([&] { option_ = option; });
}

HRESULT ObjectStateRecoveryTrigger::Write(store::Trigger& trigger) noexcept {
    return com::Guarded([&] {
        store::ObjectStateTrigger record{option_, {}};
        if (object_) com::Check(WriteTestObject(object_.Get(), record.objects));
        trigger = std::move(record);
    });
}

}  // namespace tovarin
