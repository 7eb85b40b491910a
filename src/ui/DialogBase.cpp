#include "ui/DialogBase.h"

#include <commctrl.h>

namespace recoveryui::ui {
namespace {

// What a control says because its content changed, be it by the user or by the program.
bool IsChange(const NMHDR& header) {
    return header.code == LVN_ITEMCHANGED || header.code == LVN_ITEMCHANGING || header.code == TVN_SELCHANGEDW ||
           header.code == LVN_ODSTATECHANGED;
}

}  // namespace

INT_PTR DialogBase::Dispatch(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    // The window may be destroyed in a handler: what is needed afterwards is taken now.
    const HWND window = window_;
    LRESULT answer = 0;
    bool handled = false;
    try {
        handled = Handle(message, wParam, lParam, answer);
    } catch (...) {
        // The operation under way ends here; the window stays as it is.
        if (message == WM_INITDIALOG) OnInitFailed();
        return TRUE;
    }
    if (message == WM_INITDIALOG || (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC)) return answer;
    if (handled && IsWindow(window)) SetWindowLongPtrW(window, DWLP_MSGRESULT, answer);
    return handled;
}

bool DialogBase::Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
    switch (message) {
        case WM_INITDIALOG: {
            Muted muted(*this);
            OnInit();
            answer = TRUE;
            return true;
        }
        case WM_COMMAND:
            if (muted_) return false;
            return OnCommand({LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam)});
        case WM_NOTIFY: {
            auto& header = *reinterpret_cast<NMHDR*>(lParam);
            if (muted_ && IsChange(header)) return false;
            return OnNotify(header, answer);
        }
        case WM_HELP:
            OnHelp();
            return true;
        default:
            return OnMessage(message, wParam, lParam, answer);
    }
}

}  // namespace recoveryui::ui
