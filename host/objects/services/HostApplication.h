// What the component asks of the application as a whole.
#pragma once

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class HostApplication final : public HostObject<HostApplication, IHostApplication, IHostApplicationControl> {
public:
    static constexpr const wchar_t* kName = L"HostApplication";
    static constexpr const wchar_t* kProgId = L"Tovarin.HostApplication";

    HRESULT STDMETHODCALLTYPE HostModeQuery(VARIANT_BOOL* yes) noexcept override {
        return Call(L"HostModeQuery").Give([&] { *yes = mode_ ? VARIANT_TRUE : VARIANT_FALSE; }, yes);
    }
    HRESULT STDMETHODCALLTYPE SetHostMode(VARIANT_BOOL yes) noexcept override {
        mode_ = yes != VARIANT_FALSE;
        return S_OK;
    }

private:
    bool mode_ = false;
};

}  // namespace tovarin
