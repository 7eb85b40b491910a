#include "app/SorPage.h"

#include <cwchar>
#include <string>

#include "app/Text.h"
#include "app/ids.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

// Strings that a page hands to its frame.
LPOLESTR TaskText(std::wstring_view text) {
    const auto copy = static_cast<LPOLESTR>(CoTaskMemAlloc((text.size() + 1) * sizeof(wchar_t)));
    if (!copy) com::Check(E_OUTOFMEMORY);
    std::wmemcpy(copy, text.data(), text.size());
    copy[text.size()] = L'\0';
    return copy;
}

INT_PTR CALLBACK NoProcedure(HWND, UINT, WPARAM, LPARAM) noexcept {
    return FALSE;
}

SIZE TemplateSize(HWND page) {
    RECT place{};
    GetWindowRect(page, &place);
    return {place.right - place.left, place.bottom - place.top};
}

}  // namespace

HRESULT SorPage::Activate(HWND parent, LPCRECT place, BOOL) noexcept {
    if (!place) return E_POINTER;
    if (window_) return E_UNEXPECTED;
    CreateDialogParamW(com::Module::Instance(), MAKEINTRESOURCEW(IDD_SOR), parent, &Procedure,
                       reinterpret_cast<LPARAM>(this));
    return window_ ? Move(place) : E_FAIL;
}

HRESULT SorPage::Deactivate() noexcept {
    if (!window_) return E_UNEXPECTED;
    DestroyWindow(window_);
    return S_OK;
}

HRESULT SorPage::GetPageInfo(PROPPAGEINFO* info) noexcept {
    if (!info) return E_POINTER;
    info->pszTitle = info->pszDocString = info->pszHelpFile = nullptr;
    info->dwHelpContext = 0;
    return com::Guarded([&] {
        const HWND probe = CreateDialogParamW(com::Module::Instance(), MAKEINTRESOURCEW(IDD_SOR),
                                              GetDesktopWindow(), &NoProcedure, 0);
        info->size = TemplateSize(probe);
        DestroyWindow(probe);
        info->pszTitle = TaskText(LoadText(IDS_SOR_TITLE));
        info->pszHelpFile = TaskText(kHelpTopic);
    });
}

HRESULT SorPage::Show(UINT command) noexcept {
    if (!window_) return E_UNEXPECTED;
    ShowWindow(window_, static_cast<int>(command));
    return S_OK;
}

HRESULT SorPage::Move(LPCRECT place) noexcept {
    if (!place) return E_POINTER;
    if (!window_) return E_UNEXPECTED;
    SetWindowPos(window_, nullptr, place->left, place->top, place->right - place->left,
                 place->bottom - place->top, SWP_NOZORDER | SWP_NOACTIVATE);
    return S_OK;
}

INT_PTR CALLBACK SorPage::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
    const auto page = reinterpret_cast<SorPage*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!page) return FALSE;
    try {
        switch (message) {
            case WM_INITDIALOG:
                page->window_ = window;
                page->Fill();
                return FALSE;
            case WM_COMMAND:
                if (!page->filling_) page->OnCommand(LOWORD(wParam), HIWORD(wParam));
                return TRUE;
            case WM_NCDESTROY:
                page->window_ = nullptr;
                SetWindowLongPtrW(window, GWLP_USERDATA, 0);
                return FALSE;
        }
    } catch (...) {
        ReportException(window);
    }
    return FALSE;
}

void SorPage::Fill() {
    filling_ = true;
    CheckDlgButton(window_, IDC_SOR_REQUIRE, values_.IsSet(kForceSor));
    CheckDlgButton(window_, IDC_SOR_CONFIGURED, values_.IsSet(kWasSorConfigured));
    SetDlgItemTextW(window_, IDC_SOR_REFUSAL, values_.Text(kRefusalText).c_str());
    SetDlgItemTextW(window_, IDC_SOR_QUESTION, values_.Text(kQuestionText).c_str());
    filling_ = false;
}

void SorPage::OnCommand(int control, int code) {
    const auto isChecked = [&] { return IsDlgButtonChecked(window_, control) == BST_CHECKED; };
    const auto text = [&] { return TextOf(GetDlgItem(window_, control)); };
    if (code == BN_CLICKED) {
        if (control == IDC_SOR_REQUIRE) values_.Set(kForceSor, isChecked());
        if (control == IDC_SOR_CONFIGURED) values_.Set(kWasSorConfigured, isChecked());
    } else if (code == EN_CHANGE) {
        if (control == IDC_SOR_REFUSAL) values_.SetText(kRefusalText, text());
        if (control == IDC_SOR_QUESTION) values_.SetText(kQuestionText, text());
    }
}

}  // namespace tovarin
