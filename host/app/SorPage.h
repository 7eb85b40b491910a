// The host's own settings tab: it can require its configuration, so that the other tabs' part in the frame
// can be seen. What it sets holds at once.
#pragma once

#include <ocidl.h>

#include <utility>

#include "app/FrameValues.h"
#include "com/Object.h"

namespace tovarin {

class SorPage final : public recoveryui::com::Object<SorPage, IPropertyPage> {
public:
    explicit SorPage(FrameValues values) : values_(std::move(values)) {}

    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite*) noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT place, BOOL modal) noexcept override;
    HRESULT STDMETHODCALLTYPE Deactivate() noexcept override;
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) noexcept override;
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG, IUnknown**) noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Show(UINT command) noexcept override;
    HRESULT STDMETHODCALLTYPE Move(LPCRECT place) noexcept override;
    HRESULT STDMETHODCALLTYPE IsPageDirty() noexcept override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE Apply() noexcept override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) noexcept override { return S_FALSE; }

    static constexpr const wchar_t* kHelpTopic = L"Test_Settings_-_SOR_tab.htm";

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void Fill();
    void OnCommand(int control, int code);

    FrameValues values_;
    HWND window_ = nullptr;
    bool filling_ = false;
};

}  // namespace tovarin
