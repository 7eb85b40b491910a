#include "ui/DialogBase.h"

#include <commctrl.h>

#include <utility>

#include "ui/Dpi.h"
#include "ui/IconButton.h"

namespace recoveryui::ui {
namespace {

// What a control says because its content changed, be it by the user or by the program.
bool IsChange(const NMHDR& header) {
    return header.code == LVN_ITEMCHANGED || header.code == LVN_ITEMCHANGING ||
           header.code == TVN_SELCHANGEDW || header.code == LVN_ODSTATECHANGED;
}

constexpr UINT kDpiChanged = WM_APP + 100;

void ScaleColumns(HWND dialog, int from, int to) {
    HWND list = nullptr;
    while ((list = FindWindowExW(dialog, list, WC_LISTVIEWW, nullptr)) != nullptr) {
        const int count = Header_GetItemCount(ListView_GetHeader(list));
        for (int column = 0; column < count; ++column)
            ListView_SetColumnWidth(list, column, MulDiv(ListView_GetColumnWidth(list, column), to, from));
    }
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
    if (message == WM_INITDIALOG || (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC))
        return answer;
    // Mostly it is what it was, and setting it may be dearer than asking.
    if (handled && IsWindow(window) && GetWindowLongPtrW(window, DWLP_MSGRESULT) != answer)
        SetWindowLongPtrW(window, DWLP_MSGRESULT, answer);
    return handled;
}

bool DialogBase::Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
    switch (message) {
        case WM_INITDIALOG: {
            Muted muted(*this);
            dpi_ = DpiOf(window_);
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
        case WM_DPICHANGED:
        case kDpiChangedAfterParent:
            if (message == WM_DPICHANGED) RememberDpi(window_, HIWORD(wParam));
            // Windows scales the window when this message has been handled.
            PostMessageW(window_, kDpiChanged, 0, 0);
            return false;
        case kDpiChanged: FollowDpi(); return true;
        case WM_NCDESTROY:
            ForgetDpi(window_);
            tips_.Forget();
            return OnMessage(message, wParam, lParam, answer);
        case WM_SETCURSOR: tips_.Show(window_); return OnMessage(message, wParam, lParam, answer);
        case WM_DRAWITEM: return IconButton::DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        case WM_HELP: OnHelp(); return true;
        default: return OnMessage(message, wParam, lParam, answer);
    }
}

void DialogBase::FollowDpi() {
    const int now = DpiOf(window_), before = std::exchange(dpi_, now);
    if (now == before) return;
    ScaleColumns(window_, before, now);
    OnDpiChanged();
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

}  // namespace recoveryui::ui
