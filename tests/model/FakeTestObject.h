// A test object of another maker than the stand-ins: any hierarchy, any value, and one that refuses changes.
#pragma once

#include <string>
#include <vector>

#include "HostInterfaces.h"
#include "com/Object.h"
#include "com/Variant.h"
#include "objects/services/NamedMembers.h"

namespace recoveryui::test {

class FakeTestObject final : public com::Object<FakeTestObject, ITestObject, tovarin::NamedMembers> {
public:
    struct Property {
        std::wstring name;
        com::Variant value;
        bool isRegex = false;
        bool isChecked = false;
    };

    FakeTestObject(std::wstring name, std::vector<Property> own, com::Ptr<FakeTestObject> parent = {})
        : properties(std::move(own)), name_(std::move(name)), parent_(std::move(parent)) {}

    // `levels` objects "level 1" ... of which the last is given; each is identified by "text".
    static com::Ptr<FakeTestObject> Nested(int levels) {
        com::Ptr<FakeTestObject> object;
        for (int level = 1; level <= levels; ++level)
            object = Make(L"level " + std::to_wstring(level),
                          std::vector<Property>{{L"text", com::Variant(L"t"), false, true}}, object);
        return object;
    }
    // An edit box "Name" in a dialog "Login" with properties of every sort; "text" and "x" are checked.
    static com::Ptr<FakeTestObject> LoginName() {
        com::Variant complex;
        VARIANT* const raw = complex.Put();
        raw->parray = SafeArrayCreateVector(VT_VARIANT, 0, 2);
        raw->vt = VT_ARRAY | VT_VARIANT;
        const std::vector<Property> dialog{{L"text", com::Variant(L"Log in"), false, true},
                                           {L"enabled", com::Variant(true)}},
            edit{{L"text", com::Variant(L"Your name"), false, true},
                 {L"x", com::Variant(12L), false, true},
                 {L"items", complex},
                 {L"visible", com::Variant(true)}};
        return Make(L"Name", edit, Make(L"Login", dialog));
    }

    std::vector<Property> properties;
    HRESULT writing = S_OK;  // what changing a property answers
    FakeTestObject* Parent() const { return parent_.Get(); }

    HRESULT STDMETHODCALLTYPE GetDisplayName(BSTR* name) noexcept override {
        return com::CopyTo(name, name_);
    }
    HRESULT STDMETHODCALLTYPE GetPropertyCount(long* count) noexcept override {
        return *count = static_cast<long>(properties.size()), S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetProperty(long index, BSTR* name, VARIANT* value, long* isRegex,
                                          long* isChecked) noexcept override {
        const Property& property = properties[static_cast<size_t>(index)];
        *value = com::Variant(property.value).Detach();
        *isRegex = property.isRegex;
        *isChecked = property.isChecked;
        return com::CopyTo(name, property.name);
    }
    HRESULT STDMETHODCALLTYPE SetPropertyValue(long index, VARIANT value, long isRegex) noexcept override {
        if (FAILED(writing)) return writing;
        properties[static_cast<size_t>(index)].value = com::Variant::CopyOf(value);
        properties[static_cast<size_t>(index)].isRegex = isRegex != 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetPropertyChecked(long index, long isChecked) noexcept override {
        if (SUCCEEDED(writing)) properties[static_cast<size_t>(index)].isChecked = isChecked != 0;
        return writing;
    }

private:
    DISPID FindMember(const wchar_t* name) const noexcept override {
        return parent_ && SameName(name, L"parent") ? 1 : DISPID_UNKNOWN;
    }
    HRESULT InvokeMember(DISPID, WORD, DISPPARAMS&, VARIANT* result) noexcept override {
        return *result = com::Variant(static_cast<IDispatch*>(parent_.Get())).Detach(), S_OK;
    }

    std::wstring name_;
    com::Ptr<FakeTestObject> parent_;
};

}  // namespace recoveryui::test
