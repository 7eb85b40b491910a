#include <windows.h>

#include <commctrl.h>

#include "com/Object.h"
#include "settings/SettingsTest.h"

namespace recoveryui::test {
namespace {

class Site final : public com::Object<Site, IPropertyPageSite, ISettingsFrame> {
public:
    explicit Site(bool isReadOnly) : isReadOnly_(isReadOnly) {}
    HWND frame = nullptr;

    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) noexcept override {
        EnableWindow(GetDlgItem(frame, kFrameApply), (flags & PROPPAGESTATUS_DIRTY) != 0);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown**) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) noexcept override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE IsReadOnly(VARIANT_BOOL* readOnly) noexcept override {
        *readOnly = isReadOnly_ ? VARIANT_TRUE : VARIANT_FALSE;
        return S_OK;
    }

private:
    const bool isReadOnly_;
};

HWND AddControl(HWND parent, const wchar_t* kind, const wchar_t* text, DWORD style, int id, RECT place) {
    MapDialogRect(parent, &place);
    const HWND control = CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                                         place.right - place.left, place.bottom - place.top, parent,
                                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                         GetModuleHandleW(nullptr), nullptr);
    SendMessageW(control, WM_SETFONT, static_cast<WPARAM>(SendMessageW(parent, WM_GETFONT, 0, 0)), TRUE);
    return control;
}

}  // namespace

TestFrame::TestFrame(IPropertyPage* page, IObjectRack* rack, ITestOptions* settings, bool isReadOnly)
    : page_(page), settings_(settings), site_(Site::Make(isReadOnly).Get()) {
    EXPECT_EQ(com::Query<IObjectRackClient>(page)->SetRack(rack), S_OK);
    EXPECT_EQ(page->SetPageSite(site_.Get()), S_OK);
}

TestFrame::~TestFrame() {
    EXPECT_EQ(page_->SetPageSite(nullptr), S_OK);
}

void TestFrame::ShowModal() {
    struct {
        DLGTEMPLATE head{WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_SETFONT | DS_CENTER, 0, 0, 0, 0, 320, 250};
        WORD menu = 0, windowClass = 0;
        wchar_t title[14] = L"Test Settings";
        WORD points = 8;
        wchar_t font[13] = L"MS Shell Dlg";
    } frame;
    EXPECT_GT(DialogBoxIndirectParamW(GetModuleHandleW(nullptr), &frame.head, nullptr, &Procedure,
                                      reinterpret_cast<LPARAM>(this)),
              0);
}

INT_PTR CALLBACK TestFrame::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) SetWindowLongPtrW(window, DWLP_USER, lParam);
    auto* frame = reinterpret_cast<TestFrame*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!frame) return FALSE;
    switch (message) {
        case WM_INITDIALOG: frame->Open(window); return TRUE;
        case WM_COMMAND: return frame->OnCommand(LOWORD(wParam));
        case WM_NOTIFY:
            if (reinterpret_cast<const NMHDR*>(lParam)->code != static_cast<UINT>(TCN_SELCHANGE))
                return FALSE;
            // What the page sets must be what stands in the end.
            EnableWindow(GetDlgItem(window, IDOK), TRUE);
            frame->seen.push_back("Tab");
            return FALSE;
        case WM_CLOSE: return frame->keepsOpenOnClose;
        case WM_DESTROY: EXPECT_EQ(frame->page_->Deactivate(), S_OK); return FALSE;
        default: return FALSE;
    }
}

void TestFrame::Open(HWND window) {
    window_ = window;
    static_cast<Site*>(site_.Get())->frame = window;
    if (settings_) {
        settings_.Get()->AddRef();  // the property's own
        SetPropW(window, L"SettingsObjPtr", settings_.Get());
    }
    const HWND tabs = AddControl(window, WC_TABCONTROLW, L"", WS_CLIPSIBLINGS, kFrameTabs, {7, 7, 313, 224});
    PROPPAGEINFO info{};
    EXPECT_EQ(page_->GetPageInfo(&info), S_OK);
    for (LPWSTR title : {info.pszTitle, const_cast<LPWSTR>(L"Other")}) {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = title;
        SendMessageW(tabs, TCM_INSERTITEMW, 9, reinterpret_cast<LPARAM>(&item));
    }
    CoTaskMemFree(info.pszTitle);
    CoTaskMemFree(info.pszDocString);
    CoTaskMemFree(info.pszHelpFile);
    AddControl(window, L"Button", L"OK", WS_TABSTOP | BS_DEFPUSHBUTTON, IDOK, {151, 229, 201, 243});
    AddControl(window, L"Button", L"Cancel", WS_TABSTOP, IDCANCEL, {207, 229, 257, 243});
    AddControl(window, L"Button", L"&Apply", WS_TABSTOP | WS_DISABLED, kFrameApply, {263, 229, 313, 243});

    RECT place{9, 22, 311, 222};
    MapDialogRect(window, &place);
    EXPECT_EQ(page_->Activate(window, &place, TRUE), S_OK);
    EXPECT_EQ(page_->Show(SW_SHOW), S_OK);
    SetWindowPos(tabs, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

bool TestFrame::OnCommand(int id) {
    switch (id) {
        case IDOK:
            seen.push_back("OK");
            if (Apply()) EndDialog(window_, IDOK);
            return true;
        case kFrameApply:
            seen.push_back("Apply");
            Apply();
            return true;
        case IDCANCEL:
            seen.push_back("Cancel");
            EndDialog(window_, IDCANCEL);
            return true;
        default: return false;
    }
}

bool TestFrame::Apply() {
    if (page_->IsPageDirty() != S_OK || SUCCEEDED(page_->Apply())) return true;
    EXPECT_EQ(page_->IsPageDirty(), S_OK) << "what was not written is still to be written";
    seen.push_back("Refused");
    return false;
}

}  // namespace recoveryui::test
