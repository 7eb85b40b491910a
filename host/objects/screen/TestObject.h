// An object of the application under test: a window, and how a test run finds it again.
#pragma once

#include <string>

#include "HostInterfaces.h"
#include "com/Variant.h"
#include "objects/HostObject.h"
#include "objects/services/NamedMembers.h"
#include "objects/store/Storable.h"

namespace tovarin {

// By name it answers what its window says at that moment; "parent" is empty for a top-level window. An
// object that was read from a file has no window and answers what it is identified by. IWindowTextSource
// is offered by windows that showed a text when they were pointed at.
class TestObject final : public HostObject<TestObject, ITestObject, NamedMembers, IWindowTextSource,
                                           Storable<store::Hierarchy>> {
public:
    static constexpr const wchar_t* kName = L"TestObject";

    TestObject(store::TestObject content, com::Ptr<TestObject> parent);
    TestObject(HWND window, com::Ptr<TestObject> parent);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;

    HRESULT STDMETHODCALLTYPE GetDisplayName(BSTR* name) noexcept override;
    HRESULT STDMETHODCALLTYPE GetPropertyCount(long* count) noexcept override;
    // E_INVALIDARG for an index that is not there.
    HRESULT STDMETHODCALLTYPE GetProperty(long index, BSTR* name, VARIANT* value, long* isRegularExpression,
                                          long* isChecked) noexcept override;
    HRESULT STDMETHODCALLTYPE SetPropertyValue(long index, VARIANT value,
                                               long isRegularExpression) noexcept override;
    HRESULT STDMETHODCALLTYPE SetPropertyChecked(long index, long isChecked) noexcept override;

    HRESULT STDMETHODCALLTYPE GetText(BSTR* text) noexcept override;
    HRESULT STDMETHODCALLTYPE Write(store::Hierarchy& hierarchy) noexcept override;

private:
    DISPID FindMember(const wchar_t* name) const noexcept override;
    HRESULT InvokeMember(DISPID member, WORD flags, DISPPARAMS& parameters,
                         VARIANT* result) noexcept override;
    store::Property* Find(long index) noexcept;
    com::Variant ValueNow(DISPID member);

    HWND window_ = nullptr;
    bool hasText_ = false;
    store::TestObject content_;
    com::Ptr<TestObject> parent_;
};

}  // namespace tovarin
