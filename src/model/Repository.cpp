#include "model/Repository.h"

#include "com/Bstr.h"
#include "com/Create.h"
#include "shell/Rack.h"

namespace recoveryui::model {
namespace {
// No file has more; an enumerator that goes on has no end.
constexpr std::size_t kMostNames = 1'000'000;
}  // namespace

HRESULT Repository::Create(IObjectRack* rack, Repository& repository) {
    com::Ptr<IRecoveryRepository> object;
    HRESULT hr = com::Create(L"Vantrel.RecoveryRepository", object);
    if (SUCCEEDED(hr)) hr = shell::HandRack(object.Get(), rack);
    if (SUCCEEDED(hr)) repository.object_ = object;
    return hr;
}

HRESULT Repository::Load(const std::wstring& path, bool readOnly) const {
    if (!object_) return E_POINTER;
    return object_->Load(com::Bstr(path).Get(), readOnly ? VARIANT_TRUE : VARIANT_FALSE);
}

HRESULT Repository::Save(const std::wstring& path) const {
    return object_ ? object_->Save(com::Bstr(path).Get()) : E_POINTER;
}

HRESULT Repository::Names(std::vector<std::wstring>& names) const {
    names.clear();
    if (!object_) return E_POINTER;
    com::Ptr<IScenarioEnumerator> enumerator;
    HRESULT hr = object_->GetScenarioEnumerator(enumerator.GetAddressOf());
    if (SUCCEEDED(hr) && !enumerator) hr = E_FAIL;
    com::Bstr name;
    while (SUCCEEDED(hr)) {
        hr = enumerator->Next(name.Put());
        if (hr != S_OK) break;
        if (names.size() == kMostNames) return E_FAIL;
        names.push_back(name.Text());
    }
    return SUCCEEDED(hr) ? S_OK : hr;
}

HRESULT Repository::Scenario(const std::wstring& name, com::Ptr<IUnknown>& scenario) const {
    scenario.Reset();
    if (!object_) return E_POINTER;
    const HRESULT hr = object_->GetScenario(com::Bstr(name).Get(), scenario.GetAddressOf());
    return SUCCEEDED(hr) && !scenario ? E_FAIL : hr;
}

HRESULT Repository::Exists(const std::wstring& name, bool& exists) const {
    exists = false;
    if (!object_) return E_POINTER;
    VARIANT_BOOL answer = VARIANT_FALSE;
    const HRESULT hr = object_->ScenarioExists(com::Bstr(name).Get(), &answer);
    exists = SUCCEEDED(hr) && answer != VARIANT_FALSE;
    return hr;
}

HRESULT Repository::Add(IUnknown* scenario, const std::wstring& name, bool replace) const {
    return object_ ? object_->AddScenario(scenario, com::Bstr(name).Get(), replace ? 1 : 0) : E_POINTER;
}

HRESULT Repository::Remove(const std::wstring& name) const {
    return object_ ? object_->RemoveScenario(com::Bstr(name).Get()) : E_POINTER;
}

}  // namespace recoveryui::model
