// The window of an application under test, on the thread that makes it.
#pragma once

#include <windows.h>

#include <vector>

namespace recoveryui::test {

struct Part {
    const wchar_t *kind, *text;
    int id;
    RECT place;  // left, top, width, height; in the window's client area
    DWORD style = 0;
};

inline HWND MakeApplication(const wchar_t* title, const RECT& place, const std::vector<Part>& parts) {
    WNDCLASSW kind{};
    kind.lpfnWndProc = DefWindowProcW;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = L"OrderEntry";
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
    RegisterClassW(&kind);
    const HWND window = CreateWindowExW(WS_EX_TOPMOST, kind.lpszClassName, title,
                                        WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU, place.left, place.top,
                                        place.right, place.bottom, nullptr, nullptr, kind.hInstance, nullptr);
    for (const Part& part : parts) {
        const HWND child =
            CreateWindowW(part.kind, part.text, WS_CHILD | WS_VISIBLE | part.style, part.place.left,
                          part.place.top, part.place.right, part.place.bottom, window,
                          reinterpret_cast<HMENU>(static_cast<INT_PTR>(part.id)), kind.hInstance, nullptr);
        SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
    }
    ShowWindow(window, SW_SHOWNOACTIVATE);
    return window;
}

}  // namespace recoveryui::test
