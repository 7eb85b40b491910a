#include "model/FakeTestObject.h"

#include <gtest/gtest.h>

#include "com/SafeArray.h"

namespace recoveryui::test {
namespace {

constexpr DISPID kParent = 1;
constexpr DISPID kWindow = 2;

com::Variant Complex() {
    com::CVtlSafeArray<VARIANT> array;
    EXPECT_EQ(array.Create(2), S_OK);
    com::Variant value;
    VARIANT* raw = value.Put();
    raw->vt = VT_ARRAY | VT_VARIANT;
    raw->parray = array.Detach();
    return value;
}

}  // namespace

com::Ptr<FakeTestObject> FakeTestObject::Nested(int levels) {
    com::Ptr<FakeTestObject> object;
    for (int level = 1; level <= levels; ++level) {
        object = Make(L"level " + std::to_wstring(level), object);
        object->properties = {{L"text", com::Variant(L"t"), false, true}};
    }
    return object;
}

com::Ptr<FakeTestObject> FakeTestObject::LoginName() {
    auto dialog = Make(L"Login");
    dialog->properties = {{L"text", com::Variant(L"Log in"), false, true}, {L"enabled", com::Variant(true)}};
    auto object = Make(L"Name", dialog);
    object->properties = {{L"text", com::Variant(L"Your name"), false, true},
                          {L"x", com::Variant(12L), false, true},
                          {L"items", Complex()},
                          {L"visible", com::Variant(true)}};
    return object;
}

std::wstring FakeTestObject::Identification() const {
    std::wstring all;
    for (const Property& property : properties) {
        com::Variant text;
        const HRESULT hr = VariantChangeTypeEx(text.Put(), const_cast<VARIANT*>(&property.value.Get()),
                                               LOCALE_INVARIANT, VARIANT_ALPHABOOL, VT_BSTR);
        all += (all.empty() ? L"" : L" ") + std::wstring(property.isChecked ? L"*" : L"") + property.name +
               L"=" +
               (FAILED(hr)                         ? L"?"
                : property.value.Type() == VT_BSTR ? L"'" + std::wstring(text.Text()) + L"'"
                                                   : std::wstring(text.Text())) +
               (property.isRegex ? L"/" : L"");
    }
    return all;
}

HRESULT FakeTestObject::QueryInterface(REFIID iid, void** object) noexcept {
    if (!hasText && IsEqualIID(iid, __uuidof(IWindowTextSource))) return *object = nullptr, E_NOINTERFACE;
    return Object::QueryInterface(iid, object);
}

HRESULT FakeTestObject::GetText(BSTR* out) noexcept {
    *out = nullptr;
    return text ? com::CopyTo(out, text) : S_OK;
}

HRESULT FakeTestObject::GetPropertyCount(long* count) noexcept {
    *count = static_cast<long>(properties.size());
    return S_OK;
}

HRESULT FakeTestObject::GetProperty(long index, BSTR* name, VARIANT* value, long* isRegex,
                                    long* isChecked) noexcept {
    const Property& property = properties[static_cast<size_t>(index)];
    *value = com::Variant(property.value).Detach();
    *isRegex = property.isRegex;
    *isChecked = property.isChecked;
    return com::CopyTo(name, property.name);
}

HRESULT FakeTestObject::SetPropertyValue(long index, VARIANT value, long isRegex) noexcept {
    if (FAILED(writing)) return writing;
    properties[static_cast<size_t>(index)].value = com::Variant::CopyOf(value);
    properties[static_cast<size_t>(index)].isRegex = isRegex != 0;
    return S_OK;
}

HRESULT FakeTestObject::SetPropertyChecked(long index, long isChecked) noexcept {
    if (FAILED(writing)) return writing;
    properties[static_cast<size_t>(index)].isChecked = isChecked != 0;
    return S_OK;
}

DISPID FakeTestObject::FindMember(const wchar_t* name) const noexcept {
    if (window && SameName(name, L"objectid")) return kWindow;
    return parent_ && SameName(name, L"parent") ? kParent : DISPID_UNKNOWN;
}

HRESULT FakeTestObject::InvokeMember(DISPID member, WORD, DISPPARAMS&, VARIANT* result) noexcept {
    *result = (member == kParent ? com::Variant(static_cast<IDispatch*>(parent_.Get()))
                                 : com::Variant(static_cast<long>(reinterpret_cast<INT_PTR>(window))))
                  .Detach();
    return S_OK;
}

}  // namespace recoveryui::test
