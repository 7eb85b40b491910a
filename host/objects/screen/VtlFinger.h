// The pointing hand as an object.
#pragma once

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class VtlFinger final : public HostObject<VtlFinger, IVtlFinger> {
public:
    static constexpr const wchar_t* kName = L"VtlFinger";
    static constexpr const wchar_t* kProgId = L"Vantrel.VtlFinger";

    // E_INVALIDARG for a negative time and for more than a minute.
    HRESULT STDMETHODCALLTYPE SetWaitTime(long milliseconds) noexcept override;
    // E_UNEXPECTED while a hand is out already. After giving up the point is (0, 0).
    HRESULT STDMETHODCALLTYPE CapturePoint(long* x, long* y, long* cancelled) noexcept override;

private:
    long waitMilliseconds_ = 0;
};

}  // namespace tovarin
