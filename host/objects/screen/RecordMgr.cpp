#include "objects/screen/RecordMgr.h"

#include <vector>

#include "com/SafeArray.h"
#include "objects/screen/ScreenWindows.h"
#include "objects/screen/TestObject.h"

namespace tovarin {

HRESULT RecordMgr::IsActive(VARIANT_BOOL* active) noexcept {
    return Call(L"IsActive")
        .Give([&] { *active = active_ && suspensions_ == 0 ? VARIANT_TRUE : VARIANT_FALSE; }, active);
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
    return Call(L"GetObjectsAtPoint", x, y)
        .Give(
            [&] {
                std::vector<HWND> windows;  // outwards
                for (HWND window = InnermostWindowAt({x, y}); window; window = ParentOf(window))
                    windows.push_back(window);
                com::CVtlSafeArray<VARIANT> list;
                com::Check(list.Create(static_cast<ULONG>(windows.size())));
                com::Ptr<TestObject> object;
                for (size_t index = windows.size(); index-- > 0;) {
                    object = TestObject::Make(windows[index], std::move(object));
                    const com::Variant element(static_cast<IDispatch*>(object.Get()));
                    com::Check(list.PutElement(static_cast<LONG>(index), element));
                }
                *objects = list.Detach();
            },
            objects);
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
