#include "objects/screen/VtlFinger.h"

#include "objects/screen/PointingHand.h"

namespace tovarin {
namespace {
constexpr long kLongestWait = 60'000;
}

HRESULT VtlFinger::SetWaitTime(long milliseconds) noexcept {
    return Call(L"SetWaitTime", milliseconds).Answer([&] {
        if (milliseconds < 0 || milliseconds > kLongestWait) return E_INVALIDARG;
        waitMilliseconds_ = milliseconds;
        return S_OK;
    });
}

HRESULT VtlFinger::CapturePoint(long* x, long* y, long* cancelled) noexcept {
    return Call(L"CapturePoint")
        .Give(
            [&] {
                const com::Ptr<IUnknown> self = KeepAlive();
                const auto point = LetUserPoint(static_cast<DWORD>(waitMilliseconds_));
                *x = point ? point->x : 0;
                *y = point ? point->y : 0;
                *cancelled = !point;
            },
            x, y, cancelled);
}

}  // namespace tovarin
