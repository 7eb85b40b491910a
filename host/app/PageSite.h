// What a settings page meets as its site.
#pragma once

#include <ocidl.h>

#include <functional>

#include "HostInterfaces.h"
#include "objects/HostObject.h"

namespace tovarin {

class PageSite final : public HostObject<PageSite, IPropertyPageSite, ISettingsFrame> {
public:
    static constexpr const wchar_t* kName = L"SettingsFrame";

    // `changed` is called when a page tells that it has changes to apply, or none any more.
    PageSite(bool readOnly, std::function<void()> changed)
        : readOnly_(readOnly), changed_(std::move(changed)) {}
    // The frame is gone; a page that still holds its site talks to nobody.
    void Detach() noexcept { changed_ = nullptr; }

    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) noexcept override {
        return Call(L"OnStatusChange", flags).Answer([&] {
            if (changed_) changed_();
        });
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) noexcept override {
        if (!locale) return E_POINTER;
        *locale = GetUserDefaultLCID();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** container) noexcept override {
        if (!container) return E_POINTER;
        *container = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) noexcept override { return S_FALSE; }

    HRESULT STDMETHODCALLTYPE IsReadOnly(VARIANT_BOOL* readOnly) noexcept override {
        return Call(L"IsReadOnly")
            .Give([&] { *readOnly = readOnly_ ? VARIANT_TRUE : VARIANT_FALSE; }, readOnly);
    }

private:
    const bool readOnly_;
    std::function<void()> changed_;
};

}  // namespace tovarin
