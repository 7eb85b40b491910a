#include "ui/PropertyPage.h"

#include "ui/EditKeys.h"

namespace recoveryui::ui {
namespace {

// A disabled or hidden control takes no keys, nor does one of a page that was left.
bool TakesKeys(HWND control, HWND sheet) {
    if (!control || !IsWindowEnabled(control)) return false;
    for (HWND window = control; window && window != sheet; window = GetAncestor(window, GA_PARENT))
        if (!(GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE)) return false;
    return true;
}

}  // namespace

HPROPSHEETPAGE PropertyPage::CreateHandle() {
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.dwFlags = PSP_HASHELP | (title_.empty() ? 0 : PSP_USETITLE);
    page.hInstance = com::Module::Instance();
    page.pszTemplate = MAKEINTRESOURCEW(TemplateId());
    page.pszTitle = title_.c_str();
    page.pfnDlgProc = &PropertyPage::Procedure;
    page.lParam = reinterpret_cast<LPARAM>(this);
    return CreatePropertySheetPageW(&page);
}

bool PropertyPage::OnNotify(NMHDR& header, LRESULT& answer) {
    switch (header.code) {
        case PSN_SETACTIVE:
            answer = OnSetActive();
            KeepEnter();
            PostMessageW(Window(), kKeepFocus, kShown, 0);
            return true;
        case PSN_WIZNEXT:
        case PSN_WIZBACK:
        case PSN_WIZFINISH:
            try {
                answer = header.code == PSN_WIZNEXT   ? OnWizardNext()
                         : header.code == PSN_WIZBACK ? OnWizardBack()
                                                      : OnWizardFinish();
            } catch (...) {
                answer = kStay;
            }
            return true;
        case PSN_QUERYINITIALFOCUS: answer = reinterpret_cast<LRESULT>(FirstFocus()); return true;
        case PSN_HELP: OnHelp(); return true;
        default: return false;
    }
}

bool PropertyPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
    if (message != kKeepFocus) return DialogBase::OnMessage(message, wParam, lParam, answer);
    KeepFocus(wParam == kShown);
    return true;
}

HWND PropertyPage::NextFocus() const {
    const HWND first = FirstFocus();
    return first ? first : FirstControl();
}

// Before the sheet enables and disables its buttons, so that it draws each of them once.
void PropertyPage::KeepEnter() const {
    if (const int enter = EnterButton())
        SendMessageW(Sheet(), DM_SETDEFID, static_cast<WPARAM>(enter), kSaidByPage);
}

void PropertyPage::KeepFocus(bool shown) const {
    if (LOWORD(SendMessageW(Sheet(), DM_GETDEFID, 0, 0)) != EnterButton()) KeepEnter();
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    GetGUIThreadInfo(GetCurrentThreadId(), &thread);
    if (thread.hwndActive != Sheet()) return;
    const HWND focus = thread.hwndFocus, wanted = shown ? FirstFocus() : nullptr;
    // Some sheets begin on a page's first control without asking.
    const bool elsewhere = wanted && focus != wanted && IsChild(Window(), focus) && !IsChild(wanted, focus);
    if (!elsewhere && TakesKeys(focus, thread.hwndActive)) return;
    SendMessageW(Sheet(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(elsewhere ? wanted : NextFocus()), TRUE);
}

INT_PTR CALLBACK PropertyPage::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        const LPARAM object = reinterpret_cast<const PROPSHEETPAGEW*>(lParam)->lParam;
        SetWindowLongPtrW(window, DWLP_USER, object);
        reinterpret_cast<PropertyPage*>(object)->Attach(window);
        LeaveKeysToSheet(window);
    }
    auto* page = reinterpret_cast<PropertyPage*>(GetWindowLongPtrW(window, DWLP_USER));
    return page ? page->Dispatch(message, wParam, lParam) : FALSE;
}

}  // namespace recoveryui::ui
