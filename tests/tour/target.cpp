// An application under test: a message with two buttons, in a process of its own. Its title is its argument.
#include <windows.h>

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

void Add(HWND parent, const wchar_t* kind, const wchar_t* text, int id, RECT place) {
    const HWND child = CreateWindowW(kind, text, WS_CHILD | WS_VISIBLE, place.left, place.top, place.right,
                                     place.bottom, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                     GetModuleHandleW(nullptr), nullptr);
    SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR title, int) {
    WNDCLASSW kind{};
    kind.lpfnWndProc = Procedure;
    kind.hInstance = instance;
    kind.lpszClassName = L"OrderEntry";
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.hbrBackground = GetSysColorBrush(COLOR_3DFACE);
    RegisterClassW(&kind);
    const HWND window =
        CreateWindowExW(WS_EX_TOPMOST, kind.lpszClassName, title, WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU,
                        860, 600, 340, 150, nullptr, nullptr, instance, nullptr);
    Add(window, L"STATIC", L"The order could not be saved.", 10, {20, 20, 280, 20});
    Add(window, L"BUTTON", L"&Try Again", 11, {60, 70, 100, 26});
    Add(window, L"BUTTON", L"Discard", 12, {170, 70, 100, 26});
    ShowWindow(window, SW_SHOWNOACTIVATE);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}
