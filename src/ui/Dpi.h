// Dots per inch of a window, on the monitor where it is.
#pragma once

#include <windows.h>

namespace recoveryui::ui {

// What WM_DPICHANGED is to a child window; Windows 10 began to send it.
inline constexpr UINT kDpiChangedAfterParent = 0x02E3;

int DpiOf(HWND window);

// Top-level windows keep what WM_DPICHANGED told them: Windows 8.1 sends it and has nothing to ask.
void RememberDpi(HWND window, int dpi);
void ForgetDpi(HWND window);

// Pixels for a length given at 96 DPI.
int ScaleForWindow(HWND window, int pixels);

}  // namespace recoveryui::ui
