#include "model/TestObjects.h"

#include "HostInterfaces.h"
#include "com/Automation.h"
#include "com/Guard.h"
#include "model/ObjectHierarchy.h"

namespace recoveryui::model {
namespace {

std::optional<com::Ptr<IDispatch>> ParentOf(const com::Ptr<IDispatch>& object) {
    com::Variant parent;
    if (FAILED(com::GetProperty(object.Get(), L"parent", &parent))) return std::nullopt;
    auto found = com::Query<IDispatch>(parent.Object());
    if (!found) return std::nullopt;
    return found;
}

}  // namespace

ObjectChain ChainOf(IDispatch* object) {
    return HierarchyOf(com::Ptr<IDispatch>(object), ParentOf);
}

com::CVtlSafeArray<VARIANT> ToArray(const ObjectChain& chain) {
    com::CVtlSafeArray<VARIANT> array;
    com::Check(array.Create(static_cast<ULONG>(chain.size())));
    for (size_t i = 0; i < chain.size(); ++i)
        com::Check(array.PutElement(static_cast<LONG>(i), com::Variant(chain[i].Get())));
    return array;
}

ObjectChain FromArray(const com::CVtlSafeArray<VARIANT>& array) {
    ObjectChain chain;
    com::Check(array.ForEach([&](const com::Variant& element) {
        if (auto object = com::Query<IDispatch>(element.Object())) chain.push_back(std::move(object));
    }));
    return chain;
}

std::wstring DisplayNameOf(IDispatch* object) {
    com::Bstr name;
    const auto named = com::Query<ITestObject>(object);
    if (named && SUCCEEDED(named->GetDisplayName(name.Put())) && !name.View().empty()) return name.Text();
    com::Variant kind;
    if (FAILED(com::GetProperty(object, L"class", &kind))) return {};
    return std::wstring(kind.Text());
}

}  // namespace recoveryui::model
