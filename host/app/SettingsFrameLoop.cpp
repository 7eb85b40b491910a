// The settings frame as a modal window: its procedure and its message loop.
#include <windows.h>

#include <commctrl.h>

#include "app/SettingsFrame.h"
#include "app/Text.h"
#include "app/ids.h"

namespace tovarin {
namespace {

// Nothing else of the thread takes input meanwhile.
class DisabledOwner {
public:
    explicit DisabledOwner(HWND owner) : owner_(owner && IsWindowEnabled(owner) ? owner : nullptr) {
        if (owner_) EnableWindow(owner_, FALSE);
    }
    ~DisabledOwner() {
        if (owner_) EnableWindow(owner_, TRUE);
    }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;

private:
    HWND owner_;
};

constexpr UINT kMovePages = WM_APP + 1;

bool IsHeld(int key) {
    return GetKeyState(key) < 0;
}

}  // namespace

SettingsFrame::SettingsFrame(Setup setup)
    : setup_(std::move(setup)),
      values_(setup_.options.Get()),
      site_(PageSite::Make(setup_.readOnly, [this] { RefreshApply(); })) {}

void SettingsFrame::ShowModal(HWND owner) {
    isOpen_ = true;
    CreateDialogParamW(com::Module::Instance(), MAKEINTRESOURCEW(IDD_SETTINGS), owner, &Procedure,
                       reinterpret_cast<LPARAM>(this));
    if (!window_) com::Check(E_FAIL);
    {
        const DisabledOwner disabled(owner);
        if (isOpen_) {
            ShowWindow(window_, SW_SHOW);
            RunLoop();
        }
        site_->Detach();
        tabs_.clear();
    }
    if (window_) DestroyWindow(window_);
    if (owner) SetActiveWindow(owner);
}

void SettingsFrame::RunLoop() {
    MSG message{};
    while (isOpen_ && window_) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (CallMsgFilterW(&message, MSGF_DIALOGBOX) || TakesKey(message)) continue;
        if (IsDialogMessageW(window_, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// The page comes first, as in a frame of the platform's own; then Ctrl+Tab and Ctrl+Page Up or Down.
bool SettingsFrame::TakesKey(MSG& message) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
    if (message.hwnd != window_ && !IsChild(window_, message.hwnd)) return false;
    if (tabs_.at(static_cast<size_t>(current_))->TakesKey(message)) return true;
    if (message.message != WM_KEYDOWN) return false;
    if (!IsHeld(VK_CONTROL) && (message.wParam == VK_TAB || message.wParam == VK_ESCAPE))
        return LeavesEditBox(message);
    if (!IsHeld(VK_CONTROL)) return false;
    switch (message.wParam) {
        case VK_TAB: StepTab(IsHeld(VK_SHIFT) ? -1 : 1); return true;
        case VK_NEXT: StepTab(1); return true;
        case VK_PRIOR: StepTab(-1); return true;
        default: return false;
    }
}

// A multi-line edit box takes every key and hands Tab and Escape to its page, which neither leaves itself nor
// closes the frame.
bool SettingsFrame::LeavesEditBox(const MSG& message) {
    const LRESULT wanted =
        SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
    if ((wanted & (DLGC_WANTALLKEYS | DLGC_HASSETSEL)) != (DLGC_WANTALLKEYS | DLGC_HASSETSEL)) return false;
    const bool escape = message.wParam == VK_ESCAPE;
    // A name that is being typed into a list keeps its Escape.
    if (escape && !(GetWindowLongPtrW(message.hwnd, GWL_STYLE) & ES_MULTILINE)) return false;
    SendMessageW(window_, escape ? WM_COMMAND : WM_NEXTDLGCTL, escape ? IDCANCEL : IsHeld(VK_SHIFT), FALSE);
    return true;
}

INT_PTR CALLBACK SettingsFrame::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
    const auto frame = reinterpret_cast<SettingsFrame*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!frame) return FALSE;
    try {
        if (message == WM_INITDIALOG) {
            frame->window_ = window;
            frame->OnInit();
            return FALSE;  // the focus has been set
        }
        return frame->OnMessage(message, wParam, lParam);
    } catch (...) {
        ReportException(window);
        if (message == WM_INITDIALOG) frame->isOpen_ = false;
        return FALSE;
    }
}

bool SettingsFrame::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND: OnCommand(LOWORD(wParam)); return true;
        case WM_HELP: ShowHelp(); return true;
        case WM_NOTIFY:
            if (reinterpret_cast<const NMHDR*>(lParam)->code == static_cast<UINT>(TCN_SELCHANGE))
                ShowTab(TabCtrl_GetCurSel(Item(IDC_SETTINGS_TABS)));
            return false;
        // Windows scales the frame when this message has been handled; the pages come after.
        case WM_DPICHANGED: PostMessageW(window_, kMovePages, 0, 0); return false;
        case kMovePages: MovePages(); return true;
        case WM_NCDESTROY: OnDestroyed(); return false;
        default: return false;
    }
}

}  // namespace tovarin
