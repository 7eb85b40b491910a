#include "objects/store/StoredTestObject.h"

#include "com/Automation.h"
#include "objects/HostObject.h"
#include "objects/services/NamedMembers.h"
#include "objects/store/Storable.h"
#include "objects/store/Values.h"

namespace tovarin {
namespace {

// An application nests its windows less deep; a parent that leads back to its child ends here.
constexpr size_t kMostAncestors = 256;

constexpr const wchar_t* kParentName = L"parent";
constexpr DISPID kParent = 1;
constexpr DISPID kFirstProperty = 100;

// Answers its kept properties by name, in place of the object on the screen.
class StoredTestObject final
    : public HostObject<StoredTestObject, ITestObject, NamedMembers, Storable<store::Hierarchy>> {
public:
    static constexpr const wchar_t* kName = L"TestObject";

    StoredTestObject(store::TestObject content, com::Ptr<StoredTestObject> parent)
        : content_(std::move(content)), parent_(std::move(parent)) {}

    HRESULT STDMETHODCALLTYPE GetDisplayName(BSTR* name) noexcept override {
        return Call(L"GetDisplayName").Give([&] { return com::CopyTo(name, content_.displayName); }, name);
    }
    HRESULT STDMETHODCALLTYPE GetPropertyCount(long* count) noexcept override {
        return Call(L"GetPropertyCount")
            .Give([&] { *count = static_cast<long>(content_.properties.size()); }, count);
    }
    HRESULT STDMETHODCALLTYPE GetProperty(long index, BSTR* name, VARIANT* value, long* isRegularExpression,
                                          long* isChecked) noexcept override {
        return Call(L"GetProperty", index)
            .Give(
                [&] {
                    store::Property* property = Find(index);
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
    HRESULT STDMETHODCALLTYPE SetPropertyValue(long index, VARIANT value,
                                               long isRegularExpression) noexcept override {
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
    HRESULT STDMETHODCALLTYPE SetPropertyChecked(long index, long isChecked) noexcept override {
        return Call(L"SetPropertyChecked", index, isChecked).Answer([&] {
            store::Property* property = Find(index);
            if (!property) return E_INVALIDARG;
            property->isChecked = isChecked;
            return S_OK;
        });
    }

    HRESULT STDMETHODCALLTYPE Write(store::Hierarchy& hierarchy) noexcept override {
        return com::Guarded([&] {
            for (const StoredTestObject* object = this; object; object = object->parent_.Get())
                hierarchy.push_back(object->content_);
        });
    }

private:
    store::Property* Find(long index) noexcept {
        const bool exists = index >= 0 && static_cast<size_t>(index) < content_.properties.size();
        return exists ? &content_.properties[static_cast<size_t>(index)] : nullptr;
    }
    DISPID FindMember(const wchar_t* name) const noexcept override {
        if (SameName(name, kParentName)) return parent_ ? kParent : DISPID_UNKNOWN;
        for (size_t i = 0; i < content_.properties.size(); ++i) {
            if (SameName(name, content_.properties[i].name.c_str()))
                return kFirstProperty + static_cast<DISPID>(i);
        }
        return DISPID_UNKNOWN;
    }
    HRESULT InvokeMember(DISPID member, WORD flags, DISPPARAMS&, VARIANT* result) noexcept override {
        const store::Property* property = Find(member - kFirstProperty);
        if (!(flags & DISPATCH_PROPERTYGET) || (member != kParent && !property)) return DISP_E_MEMBERNOTFOUND;
        return Call(property ? property->name.c_str() : kParentName)
            .Give(
                [&] {
                    com::Variant value = property ? ToVariant(property->value)
                                                  : com::Variant(static_cast<IDispatch*>(parent_.Get()));
                    *result = value.Detach();
                },
                result);
    }

    store::TestObject content_;
    com::Ptr<StoredTestObject> parent_;
};

store::TestObject ReadForeign(ITestObject* object) {
    store::TestObject content;
    com::Bstr name;
    long count = 0;
    com::Check(object->GetDisplayName(name.Put()));
    com::Check(object->GetPropertyCount(&count));
    content.displayName = name.Text();
    for (long index = 0; index < count; ++index) {
        com::Variant value;
        long isRegularExpression = 0, isChecked = 0;
        com::Check(object->GetProperty(index, name.Put(), value.Put(), &isRegularExpression, &isChecked));
        store::Property& property = content.properties.emplace_back();
        property = {name.Text(),
                    {},
                    static_cast<std::int32_t>(isRegularExpression),
                    static_cast<std::int32_t>(isChecked)};
        com::Check(ToValue(value.Get(), property.value));
    }
    return content;
}

}  // namespace

com::Ptr<ITestObject> RestoreTestObject(const store::Hierarchy& hierarchy) {
    com::Ptr<StoredTestObject> object;
    for (auto content = hierarchy.rbegin(); content != hierarchy.rend(); ++content)
        object = StoredTestObject::Make(*content, std::move(object));
    return object;
}

HRESULT WriteTestObject(ITestObject* object, store::Hierarchy& hierarchy) {
    return com::Guarded([&] {
        HRESULT hr = WriteRecord(object, hierarchy);
        if (hr != E_NOINTERFACE) return hr;
        com::Ptr<ITestObject> member(object);
        while (member && hierarchy.size() < kMostAncestors) {
            hierarchy.push_back(ReadForeign(member.Get()));
            com::Variant parent;
            const com::Ptr<IDispatch> properties = com::Query<IDispatch>(member.Get());
            hr = properties ? com::GetProperty(properties.Get(), kParentName, &parent) : E_NOINTERFACE;
            member = SUCCEEDED(hr) ? com::Query<ITestObject>(parent.Object()) : nullptr;
        }
        return S_OK;
    });
}

}  // namespace tovarin
