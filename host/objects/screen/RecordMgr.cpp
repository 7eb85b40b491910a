#include "objects/screen/RecordMgr.h"

namespace tovarin {

HRESULT RecordMgr::IsActive(VARIANT_BOOL* active) noexcept {
    return Call(L"IsActive").Give(
        [&] { *active = active_ && suspensions_ == 0 ? VARIANT_TRUE : VARIANT_FALSE; }, active);
}

HRESULT RecordMgr::Suspend() noexcept {
    return Call(L"Suspend").Answer([&] { ++suspensions_; });
}

HRESULT RecordMgr::Resume() noexcept {
    return Call(L"Resume").Answer([&] {
        if (suspensions_ == 0) return S_FALSE;
        --suspensions_;
        return S_OK;
    });
}

HRESULT RecordMgr::GetObjectsAtPoint(SAFEARRAY** objects, long x, long y) noexcept {
    return Call(L"GetObjectsAtPoint", x, y).Give([] { return E_NOTIMPL; }, objects);
}

HRESULT RecordMgr::SetActive(VARIANT_BOOL active) noexcept {
    active_ = active != VARIANT_FALSE;
    return S_OK;
}

HRESULT RecordMgr::GetSuspensions(long* count) noexcept {
    if (!count) return E_POINTER;
    *count = suspensions_;
    return S_OK;
}

}  // namespace tovarin
