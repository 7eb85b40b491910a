#include "settings/RecoveryPP.h"

#include <ocidl.h>

#include "com/Dual.h"
#include "com/Object.h"
#include "resources/ids.h"
#include "settings/ChangedMark.h"
#include "settings/FrameGlue.h"
#include "settings/RecoveryTab.h"
#include "shell/Rack.h"
#include "support/HelpTopics.h"
#include "ui/Help.h"
#include "ui/ModuleState.h"
#include "ui/Strings.h"
#include "ui/Window.h"

namespace recoveryui::settings {
namespace {

LPOLESTR CopyForCaller(const std::wstring& text) {
    const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    auto* copy = static_cast<LPOLESTR>(CoTaskMemAlloc(bytes));
    if (!copy) throw std::bad_alloc();
    std::copy_n(text.c_str(), text.size() + 1, copy);
    return copy;
}

// The page of the settings frame. Keeps what the tab edits, also while the frame has taken its window away.
class RecoveryPP final : public com::Object<RecoveryPP, IPropertyPage, shell::RackClient,
                                            com::Dual<IObjectRackClient, IDispatch>> {
public:
    ~RecoveryPP() {
        if (tab_) tab_->Destroy();
    }

    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) noexcept override {
        site_ = site;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT place, BOOL) noexcept override {
        if (!place) return E_POINTER;
        if (tab_ || !IsWindow(parent)) return E_UNEXPECTED;
        const auto alive = KeepAlive();
        return ui::Enter([&] { Open(parent, *place); });
    }
    HRESULT STDMETHODCALLTYPE Deactivate() noexcept override {
        if (!tab_) return E_UNEXPECTED;
        const auto alive = KeepAlive();
        const auto tab = std::exchange(tab_, nullptr);
        tab->Destroy();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) noexcept override {
        if (!info) return E_POINTER;
        info->pszTitle = info->pszDocString = info->pszHelpFile = nullptr;
        info->size = {};
        info->dwHelpContext = 0;
        const HRESULT hr = ui::Enter([&] {
            info->size = RecoveryTab::SizeOf(IDD_RECOVERY_TAB);
            info->pszTitle = CopyForCaller(ui::LoadText(IDS_RECOVERY_TAB_TITLE));
            info->pszHelpFile = CopyForCaller(support::topics::kRecoveryTab);
        });
        if (FAILED(hr)) CoTaskMemFree(std::exchange(info->pszTitle, nullptr));
        return hr;
    }
    // The page is about the test, which it finds through the rack.
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG count, IUnknown** objects) noexcept override {
        return count > 0 && !objects ? E_POINTER : S_OK;
    }
    HRESULT STDMETHODCALLTYPE Show(UINT command) noexcept override {
        if (command != SW_SHOW && command != SW_SHOWNORMAL && command != SW_HIDE) return E_INVALIDARG;
        if (!TabWindow()) return E_UNEXPECTED;
        ShowWindow(TabWindow(), static_cast<int>(command));
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Move(LPCRECT place) noexcept override {
        if (!place) return E_POINTER;
        if (!TabWindow()) return E_UNEXPECTED;
        MoveWindow(TabWindow(), place->left, place->top, place->right - place->left,
                   place->bottom - place->top, TRUE);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE IsPageDirty() noexcept override { return dirty_ ? S_OK : S_FALSE; }
    HRESULT STDMETHODCALLTYPE Apply() noexcept override {
        const auto alive = KeepAlive();
        return com::Guarded([&] {
            if (!loaded_) return S_OK;
            if (!settings_->Apply()) return E_FAIL;
            Mark(false);
            return S_OK;
        });
    }
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR) noexcept override {
        const auto alive = KeepAlive();
        return ui::Enter([&] { ui::ShowHelpTopic(TabWindow(), support::topics::kRecoveryTab, Rack()); });
    }
    // The tab's keys reach its controls through the frame's own dialog navigation.
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) noexcept override {
        return message ? S_FALSE : E_POINTER;
    }

private:
    HWND TabWindow() const noexcept { return tab_ ? tab_->Window() : nullptr; }

    void Open(HWND parent, const RECT& place) {
        if (!dirty_) settings_->Load(Rack());
        loaded_ = true;
        frame_ = GetAncestor(parent, GA_ROOT);
        const auto tab = std::make_shared<RecoveryTab>(Rack(), settings_, [this] { Mark(true); });
        tab->Create(parent);
        tab_ = tab;
        Move(&place);
        FrameGlue::Install(frame_);
    }

    bool SiteSaysReadOnly() const {
        const auto frame = com::Query<ISettingsFrame>(site_.Get());
        VARIANT_BOOL readOnly = VARIANT_FALSE;
        return frame && SUCCEEDED(frame->IsReadOnly(&readOnly)) && readOnly != VARIANT_FALSE;
    }

    // Tells the frame that there is something to apply, or nothing any more.
    void Mark(bool changed) {
        const auto alive = KeepAlive();
        if (!changed) dirty_ = false;
        com::Ptr<ITestOptions> options;
        if (FAILED(shell::Fetch(Rack(), L"TestOptions", options))) return;
        dirty_ = changed;
        const GlobalVariables values(options);
        values.Write(GlobalVariables::kDirty, changed ? 1 : 0);
        if (const auto site = site_)
            site->OnStatusChange(changed ? PROPPAGESTATUS_DIRTY : PROPPAGESTATUS_CLEAN);
        const ChangedMark mark = MarkPage(changed, SiteSaysReadOnly(), TabWindow() != nullptr);
        if (mark.disableApplyAndOk) {
            for (const int id : {kFrameApply, kFrameOk}) ui::Enable(GetDlgItem(frame_, id), false);
        }
        if (mark.allowApply) values.Write(GlobalVariables::kAllowApply, *mark.allowApply);
    }

    com::Ptr<IPropertyPageSite> site_;
    std::shared_ptr<RecoverySettings> settings_ = std::make_shared<RecoverySettings>();
    std::shared_ptr<RecoveryTab> tab_;
    HWND frame_ = nullptr;
    bool loaded_ = false;
    bool dirty_ = false;
};

}  // namespace

HRESULT CreateRecoveryPP(REFIID iid, void** object) noexcept {
    return RecoveryPP::Create(iid, object);
}

}  // namespace recoveryui::settings
