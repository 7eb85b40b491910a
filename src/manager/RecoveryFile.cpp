#include "manager/RecoveryFile.h"

#include "RecoveryUI.h"
#include "manager/StorePlan.h"

namespace recoveryui::manager {

void RecoveryFile::Start() {
    model::Repository fresh;
    if (SUCCEEDED(model::Repository::Create(rack_.Get(), fresh)) && SUCCEEDED(fresh.LoadUntitled()))
        repository_ = fresh;
}

HRESULT RecoveryFile::MakeNew() {
    const HRESULT hr = repository_.LoadUntitled();
    if (SUCCEEDED(hr)) Become({}, false);
    return hr;
}

OpenResult RecoveryFile::Open(const std::wstring& path) {
    constexpr OpenResult kRefused{OpenAction::Refuse};
    model::Repository viewed;
    if (FAILED(model::Repository::Create(rack_.Get(), viewed))) return kRefused;
    OpenResult result = AfterViewingLoad(viewed.Load(path, true));
    if (result.action == OpenAction::Refuse) return result;

    model::Repository edited = repository_;
    if (!edited && FAILED(model::Repository::Create(rack_.Get(), edited))) return kRefused;
    result = AfterEditingLoad(edited.Load(path, false));
    if (result.action == OpenAction::Refuse) return result;
    const bool readOnly = result.action == OpenAction::KeepViewing;
    repository_ = readOnly ? viewed : edited;
    Become(path, readOnly);
    return result;
}

HRESULT RecoveryFile::Save() {
    const HRESULT hr = repository_.Save(path_);
    if (SUCCEEDED(hr)) dirty_ = false;
    return hr;
}

HRESULT RecoveryFile::SaveAs(const std::wstring& path) {
    const HRESULT hr = repository_.Save(path);
    if (SUCCEEDED(hr)) Become(path, readOnly_);
    return hr;
}

HRESULT RecoveryFile::Store(const NamedScenario& edited, const NamedScenario& made) {
    const StorePlan plan = PlanStore(edited.name, made.name);
    HRESULT hr = plan.removeOldFirst ? repository_.Remove(edited.name) : S_OK;
    if (FAILED(hr)) return hr;
    hr = repository_.Add(made.scenario.Get(), made.name, plan.replace);
    if (FAILED(hr)) {
        const bool restored =
            !plan.removeOldFirst || SUCCEEDED(repository_.Add(edited.scenario.Get(), edited.name, false));
        dirty_ |= !restored;
        return hr;
    }
    // Two scenarios instead of one are better than none: a failure here leaves both.
    if (plan.removeOldAfter) (void)repository_.Remove(edited.name);
    dirty_ = true;
    return hr;
}

void RecoveryFile::Become(const std::wstring& path, bool readOnly) {
    path_ = path;
    readOnly_ = readOnly;
    dirty_ = false;
}

}  // namespace recoveryui::manager
