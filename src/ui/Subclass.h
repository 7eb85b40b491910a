// A procedure before a window's own one.
#pragma once

#include <windows.h>

namespace recoveryui::ui {

// The window's own procedure is kept as its user data: the common controls' subclassing looks a window
// property up several times for each message. For windows of the module's own dialogs; to the window's end,
// and once for each window: a second procedure would take the place where the first looks for the own one.
inline void PutBefore(HWND window, WNDPROC procedure) noexcept {
    SetWindowLongPtrW(window, GWLP_USERDATA, GetWindowLongPtrW(window, GWLP_WNDPROC));
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

// For that procedure: what the window's own one does with a message.
inline LRESULT CallOwn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const auto own = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return CallWindowProcW(own, window, message, wParam, lParam);
}

}  // namespace recoveryui::ui
