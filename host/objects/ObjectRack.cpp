#include "objects/ObjectRack.h"

#include "com/Create.h"

namespace tovarin {

HRESULT ObjectRack::SetObject(BSTR name, IUnknown* object) noexcept {
    return Call(L"SetObject", name, object).Answer([&] {
        if (com::ViewOf(name).empty() || !object) return E_INVALIDARG;
        objects_.insert_or_assign(std::wstring(com::ViewOf(name)), object);
        return S_OK;
    });
}

HRESULT ObjectRack::GetObject(BSTR name, REFIID iid, IUnknown** object) noexcept {
    return Call(L"GetObject", name, iid)
        .Give(
            [&] {
                const auto found = objects_.find(com::ViewOf(name));
                return found != objects_.end()
                           ? found->second->QueryInterface(iid, reinterpret_cast<void**>(object))
                           : E_FAIL;
            },
            object);
}

HRESULT ObjectRack::RemoveObject(BSTR name) noexcept {
    return Call(L"RemoveObject", name).Answer([&] {
        const auto found = objects_.find(com::ViewOf(name));
        if (found == objects_.end()) return E_FAIL;
        objects_.erase(found);
        return S_OK;
    });
}

HRESULT ObjectRack::PutNew(BSTR name, BSTR progId) noexcept {
    com::Ptr<IUnknown> object;
    const HRESULT hr = com::Create(progId ? progId : L"", object);
    return SUCCEEDED(hr) ? SetObject(name, object.Get()) : hr;
}

HRESULT ObjectRack::GiveTo(IUnknown* client) noexcept {
    const auto taker = com::Query<IObjectRackClient>(client);
    return taker ? taker->SetRack(this) : E_NOINTERFACE;
}

}  // namespace tovarin
