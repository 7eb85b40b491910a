// A test object that a test makes up: any hierarchy, any value, and one that refuses to be changed.
#pragma once

#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "com/Object.h"
#include "com/Variant.h"
#include "objects/services/NamedMembers.h"

namespace recoveryui::test {

class FakeTestObject final
    : public com::Object<FakeTestObject, ITestObject, tovarin::NamedMembers, IWindowTextSource> {
public:
    struct Property {
        std::wstring name;
        com::Variant value;
        bool isRegex = false;
        bool isChecked = false;
    };

    explicit FakeTestObject(std::wstring name, com::Ptr<FakeTestObject> parent = {})
        : name_(std::move(name)), parent_(std::move(parent)) {}

    // `levels` objects "level 1" ... of which the last is given; each is identified by "text".
    static com::Ptr<FakeTestObject> Nested(int levels);
    // An edit box "Name" in a dialog "Login" with properties of every sort; "text" and "x" are checked.
    static com::Ptr<FakeTestObject> LoginName();

    // "text=value", "*" in front of a checked one, "/" behind a regular expression.
    std::wstring Identification() const;

    std::vector<Property> properties;
    HRESULT writing = S_OK;  // what changing a property answers
    HWND window = nullptr;   // its "objectid", if it has one
    bool hasText = false;    // whether it offers its text, which may be none at all
    const wchar_t* text = nullptr;
    FakeTestObject* Parent() const { return parent_.Get(); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
    HRESULT STDMETHODCALLTYPE GetText(BSTR* out) noexcept override;
    HRESULT STDMETHODCALLTYPE GetDisplayName(BSTR* name) noexcept override {
        return com::CopyTo(name, name_);
    }
    HRESULT STDMETHODCALLTYPE GetPropertyCount(long* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetProperty(long index, BSTR* name, VARIANT* value, long* isRegex,
                                          long* isChecked) noexcept override;
    HRESULT STDMETHODCALLTYPE SetPropertyValue(long index, VARIANT value, long isRegex) noexcept override;
    HRESULT STDMETHODCALLTYPE SetPropertyChecked(long index, long isChecked) noexcept override;

private:
    DISPID FindMember(const wchar_t* name) const noexcept override;
    HRESULT InvokeMember(DISPID member, WORD flags, DISPPARAMS&, VARIANT* result) noexcept override;

    std::wstring name_;
    com::Ptr<FakeTestObject> parent_;
};

}  // namespace recoveryui::test
