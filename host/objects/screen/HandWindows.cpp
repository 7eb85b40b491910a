#include "objects/screen/HandWindows.h"

#include "com/Guard.h"
#include "objects/screen/ScreenWindows.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

constexpr int kFrameWidth = 3;
// Large enough that a quick movement does not leave it before it follows.
constexpr int kSpotSize = 9;
constexpr const wchar_t* kClassName = L"TovarinPointingHand";

void RegisterWindowClass() {
    WNDCLASSEXW kind{};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = DefWindowProcW;
    kind.hInstance = com::Module::Instance();
    kind.hCursor = LoadCursorW(nullptr, IDC_HAND);
    kind.hbrBackground = GetSysColorBrush(COLOR_HIGHLIGHT);
    kind.lpszClassName = kClassName;
    if (!RegisterClassExW(&kind) && GetLastError() != ERROR_CLASS_ALREADY_EXISTS)
        throw com::HResultError(HRESULT_FROM_WIN32(GetLastError()));
}

OwnedWindow Make(DWORD style) {
    OwnedWindow window(CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE | style,
                                       kClassName, nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                       com::Module::Instance(), nullptr));
    if (!window) throw com::HResultError(HRESULT_FROM_WIN32(GetLastError()));
    return window;
}

}  // namespace

HandWindows::HandWindows() {
    RegisterWindowClass();
    frame_ = Make(0);
    // Invisible, and yet below the pointer.
    spot_ = Make(WS_EX_LAYERED);
    SetLayeredWindowAttributes(spot_.get(), 0, 1, LWA_ALPHA);
    SetWindowRgn(spot_.get(), CreateEllipticRgn(0, 0, kSpotSize + 1, kSpotSize + 1), FALSE);
}

void HandWindows::Follow(POINT pointer) {
    constexpr UINT kFlags = SWP_NOACTIVATE | SWP_SHOWWINDOW;
    SetWindowPos(spot_.get(), HWND_TOPMOST, pointer.x - kSpotSize / 2, pointer.y - kSpotSize / 2, kSpotSize,
                 kSpotSize, kFlags);
    SetCursor(LoadCursorW(nullptr, IDC_HAND));

    const std::array own{frame_.get(), spot_.get()};
    const HWND window = InnermostWindowAt(pointer, own);
    RECT place{};
    if (window) GetWindowRect(window, &place);
    if (!EqualRect(&place, &framed_)) Frame(place);
}

void HandWindows::Frame(const RECT& place) {
    framed_ = place;
    const int width = place.right - place.left, height = place.bottom - place.top;
    if (width <= 0 || height <= 0) {
        ShowWindow(frame_.get(), SW_HIDE);
        return;
    }
    const HRGN outer = CreateRectRgn(0, 0, width, height);
    const HRGN inner = CreateRectRgn(kFrameWidth, kFrameWidth, width - kFrameWidth, height - kFrameWidth);
    if (width > 2 * kFrameWidth && height > 2 * kFrameWidth) CombineRgn(outer, outer, inner, RGN_DIFF);
    DeleteObject(inner);
    SetWindowPos(frame_.get(), spot_.get(), place.left, place.top, width, height, SWP_NOACTIVATE);
    SetWindowRgn(frame_.get(), outer, TRUE);  // takes the region
    ShowWindow(frame_.get(), SW_SHOWNOACTIVATE);
}

}  // namespace tovarin
