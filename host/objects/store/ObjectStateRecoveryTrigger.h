// The trigger that fires when an object's properties reach given values.
#pragma once

#include "objects/store/Kinds.h"
#include "objects/store/Storable.h"

namespace tovarin {

// Keeps the test object itself; the object keeps how it is identified.
class ObjectStateRecoveryTrigger final
    : public HostObject<ObjectStateRecoveryTrigger, IObjectStateRecoveryTrigger,
                        KindOfTrigger<ObjectStateRecoveryTrigger, 0>, RackClient<ObjectStateRecoveryTrigger>,
                        Storable<store::Trigger>> {
public:
    static constexpr const wchar_t* kName = L"ObjectStateRecoveryTrigger";
    static constexpr const wchar_t* kProgId = L"Vantrel.ObjectStateRecoveryTrigger";

    ObjectStateRecoveryTrigger() = default;
    explicit ObjectStateRecoveryTrigger(const store::ObjectStateTrigger& record);

    HRESULT STDMETHODCALLTYPE GetTestObject(ITestObject** object) noexcept override;
    HRESULT STDMETHODCALLTYPE SetTestObject(ITestObject* object) noexcept override;
    HRESULT STDMETHODCALLTYPE GetObjectStateOption(long* option) noexcept override;
    HRESULT STDMETHODCALLTYPE SetObjectStateOption(long option) noexcept override;
    HRESULT STDMETHODCALLTYPE Write(store::Trigger& trigger) noexcept override;

private:
    com::Ptr<ITestObject> object_;
    long option_ = 0;
};

}  // namespace tovarin
