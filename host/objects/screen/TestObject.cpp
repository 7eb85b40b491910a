#include "objects/screen/TestObject.h"

#include "objects/screen/ScreenWindows.h"
#include "objects/store/Values.h"

namespace tovarin {
namespace {

constexpr DISPID kParent = 1;
constexpr DISPID kObjectId = 2;
constexpr DISPID kFirstProperty = 100;

const wchar_t* OwnMemberName(DISPID member) {
    return member == kParent ? L"parent" : L"objectid";
}

}  // namespace

TestObject::TestObject(store::TestObject content, com::Ptr<TestObject> parent)
    : content_(std::move(content)), parent_(std::move(parent)) {}

TestObject::TestObject(HWND window, com::Ptr<TestObject> parent)
    : window_(window),
      hasText_(!VisibleText(window).empty()),
      content_(Identify(FactsOf(window))),
      parent_(std::move(parent)) {}

HRESULT TestObject::QueryInterface(REFIID iid, void** object) noexcept {
    if (object && !hasText_ && IsEqualIID(iid, __uuidof(IWindowTextSource))) {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    return Object::QueryInterface(iid, object);
}

HRESULT TestObject::GetDisplayName(BSTR* name) noexcept {
    return Call(L"GetDisplayName").Give([&] { return com::CopyTo(name, content_.displayName); }, name);
}

HRESULT TestObject::GetPropertyCount(long* count) noexcept {
    return Call(L"GetPropertyCount")
        .Give([&] { *count = static_cast<long>(content_.properties.size()); }, count);
}

HRESULT TestObject::GetProperty(long index, BSTR* name, VARIANT* value, long* isRegularExpression,
                                long* isChecked) noexcept {
    return Call(L"GetProperty", index)
        .Give(
            [&] {
                const store::Property* property = Find(index);
                if (!property) return E_INVALIDARG;
                com::Variant copy = ToVariant(property->value);
                const HRESULT hr = com::CopyTo(name, property->name);
                if (FAILED(hr)) return hr;
                *value = copy.Detach();
                *isRegularExpression = property->isRegularExpression;
                *isChecked = property->isChecked;
                return S_OK;
            },
            name, value, isRegularExpression, isChecked);
}

HRESULT TestObject::SetPropertyValue(long index, VARIANT value, long isRegularExpression) noexcept {
    return Call(L"SetPropertyValue", index, value, isRegularExpression).Answer([&] {
        store::Property* property = Find(index);
        store::Value kept;
        if (!property) return E_INVALIDARG;
        const HRESULT hr = ToValue(com::Variant::CopyOf(value).Get(), kept);
        if (FAILED(hr)) return hr;
        property->value = std::move(kept);
        property->isRegularExpression = isRegularExpression;
        return S_OK;
    });
}

HRESULT TestObject::SetPropertyChecked(long index, long isChecked) noexcept {
    return Call(L"SetPropertyChecked", index, isChecked).Answer([&] {
        store::Property* property = Find(index);
        if (!property) return E_INVALIDARG;
        property->isChecked = isChecked;
        return S_OK;
    });
}

HRESULT TestObject::GetText(BSTR* text) noexcept {
    return Call(L"GetText")
        .Give(
            [&] {
                return IsWindow(window_) ? com::CopyTo(text, VisibleText(window_))
                                         : HRESULT_FROM_WIN32(ERROR_INVALID_WINDOW_HANDLE);
            },
            text);
}

HRESULT TestObject::Write(store::Hierarchy& hierarchy) noexcept {
    return com::Guarded([&] {
        for (const TestObject* object = this; object; object = object->parent_.Get())
            hierarchy.push_back(object->content_);
    });
}

store::Property* TestObject::Find(long index) noexcept {
    const bool exists = index >= 0 && static_cast<size_t>(index) < content_.properties.size();
    return exists ? &content_.properties[static_cast<size_t>(index)] : nullptr;
}

DISPID TestObject::FindMember(const wchar_t* name) const noexcept {
    if (SameName(name, OwnMemberName(kParent))) return kParent;
    if (window_ && SameName(name, OwnMemberName(kObjectId))) return kObjectId;
    for (size_t index = 0; index < content_.properties.size(); ++index) {
        if (SameName(name, content_.properties[index].name.c_str()))
            return kFirstProperty + static_cast<DISPID>(index);
    }
    return DISPID_UNKNOWN;
}

HRESULT TestObject::InvokeMember(DISPID member, WORD flags, DISPPARAMS&, VARIANT* result) noexcept {
    const store::Property* property = Find(member - kFirstProperty);
    const bool known = property || member == kParent || (member == kObjectId && window_);
    if (!known || !(flags & DISPATCH_PROPERTYGET)) return DISP_E_MEMBERNOTFOUND;
    return Call(property ? property->name.c_str() : OwnMemberName(member))
        .Give([&] { *result = ValueNow(member).Detach(); }, result);
}

com::Variant TestObject::ValueNow(DISPID member) {
    if (member == kParent)
        return parent_ ? com::Variant(static_cast<IDispatch*>(parent_.Get())) : com::Variant();
    if (member == kObjectId) return com::Variant(static_cast<long>(reinterpret_cast<LONG_PTR>(window_)));
    const auto index = static_cast<size_t>(member - kFirstProperty);
    if (!window_) return ToVariant(content_.properties[index].value);
    if (!IsWindow(window_)) throw com::HResultError(HRESULT_FROM_WIN32(ERROR_INVALID_WINDOW_HANDLE));
    return ToVariant(Identify(FactsOf(window_)).properties[index].value);
}

}  // namespace tovarin
