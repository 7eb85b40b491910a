#include "objects/store/StoredTestObject.h"

#include "com/Automation.h"
#include "objects/screen/TestObject.h"
#include "objects/store/StoreFormat.h"
#include "objects/store/Values.h"

namespace tovarin {
namespace {

// An application nests its windows less deep; a parent that leads back to its child ends here.
constexpr size_t kMostAncestors = 256;

constexpr const wchar_t* kParentName = L"parent";
store::TestObject ReadForeign(ITestObject* object) {
    store::TestObject content;
    com::Bstr name;
    long count = 0;
    com::Check(object->GetDisplayName(name.Put()));
    com::Check(object->GetPropertyCount(&count));
    content.displayName = name.Text();
    if (count > static_cast<long>(store::kMostItems)) throw com::HResultError(E_INVALIDARG);
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
    com::Ptr<TestObject> object;
    for (auto content = hierarchy.rbegin(); content != hierarchy.rend(); ++content)
        object = TestObject::Make(*content, std::move(object));
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
