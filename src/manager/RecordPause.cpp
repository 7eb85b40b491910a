#include "manager/RecordPause.h"

#include "shell/Rack.h"

namespace recoveryui::manager {

RecordPause::~RecordPause() {
    if (suspended_) manager_->Resume();
}

HRESULT RecordPause::Begin(IObjectRack* rack) {
    HRESULT hr = shell::Fetch(rack, L"RecordMgr", manager_);
    if (FAILED(hr)) return hr;
    VARIANT_BOOL active = VARIANT_FALSE;
    hr = manager_->IsActive(&active);
    if (FAILED(hr) || active == VARIANT_FALSE) return hr;
    hr = manager_->Suspend();
    suspended_ = SUCCEEDED(hr);
    return hr;
}

}  // namespace recoveryui::manager
