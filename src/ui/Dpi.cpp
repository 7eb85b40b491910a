#include "ui/Dpi.h"

#include <atomic>

namespace recoveryui::ui {
namespace {

constexpr wchar_t kProperty[] = L"RecoveryUI.Dpi";
std::atomic<bool> anyTold = false;  // while none was, there is no property to look up

int AskSystem(HWND window) {
    using GetDpi = UINT(WINAPI*)(HWND);
    static const auto getDpi = reinterpret_cast<GetDpi>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    if (const UINT dpi = getDpi ? getDpi(window) : 0) return static_cast<int>(dpi);
    const HDC device = GetDC(window);
    const int dpi = GetDeviceCaps(device, LOGPIXELSY);
    ReleaseDC(window, device);
    return dpi;
}

}  // namespace

int DpiOf(HWND window) {
    const auto told =
        anyTold ? reinterpret_cast<INT_PTR>(GetPropW(GetAncestor(window, GA_ROOT), kProperty)) : 0;
    return told ? static_cast<int>(told) : AskSystem(window);
}

void RememberDpi(HWND window, int dpi) {
    anyTold = true;
    SetPropW(window, kProperty, reinterpret_cast<HANDLE>(static_cast<INT_PTR>(dpi)));
}

void ForgetDpi(HWND window) {
    if (anyTold) RemovePropW(window, kProperty);
}

int ScaleForWindow(HWND window, int pixels) {
    return MulDiv(pixels, DpiOf(window), USER_DEFAULT_SCREEN_DPI);
}

}  // namespace recoveryui::ui
