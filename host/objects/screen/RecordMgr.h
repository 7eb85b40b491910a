// The recorder, as far as other parts of the host meet it: whether it records, and the objects on screen.
#pragma once

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class RecordMgr final : public HostObject<RecordMgr, IRecordMgr, IRecordMgrControl> {
public:
    static constexpr const wchar_t* kName = L"RecordMgr";
    static constexpr const wchar_t* kProgId = L"Tovarin.RecordMgr";

    // True while a recording runs that nobody has suspended.
    HRESULT STDMETHODCALLTYPE IsActive(VARIANT_BOOL* active) noexcept override;
    // Suspensions nest. S_FALSE for a resume that nothing was suspended for.
    HRESULT STDMETHODCALLTYPE Suspend() noexcept override;
    HRESULT STDMETHODCALLTYPE Resume() noexcept override;
    // Empty over the bare desktop.
    HRESULT STDMETHODCALLTYPE GetObjectsAtPoint(SAFEARRAY** objects, long x, long y) noexcept override;

    // The host's own side is not written down.
    HRESULT STDMETHODCALLTYPE SetActive(VARIANT_BOOL active) noexcept override;
    HRESULT STDMETHODCALLTYPE GetSuspensions(long* count) noexcept override;

private:
    bool active_ = false;
    long suspensions_ = 0;
};

}  // namespace tovarin
