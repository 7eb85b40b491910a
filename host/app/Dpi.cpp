#include "app/Dpi.h"

namespace tovarin {
namespace {

// Windows 10 and later have them; the host runs without.
template <class Function>
Function UserFunction(const char* name) {
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

int SystemDpi() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi;
}

}  // namespace

int DpiOf(HWND window) {
    static const auto getDpi = UserFunction<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
    const UINT dpi = getDpi ? getDpi(window) : 0;
    return dpi > 0 ? static_cast<int>(dpi) : SystemDpi();
}

HFONT CreateMessageFont(int dpi) {
    static const auto getForDpi =
        UserFunction<BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT)>("SystemParametersInfoForDpi");
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!getForDpi ||
        !getForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi)))
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return CreateFontIndirectW(&metrics.lfMessageFont);
}

}  // namespace tovarin
