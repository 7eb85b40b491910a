#include "wizard/TargetApplication.h"

#include <commctrl.h>

namespace recoveryui::test {
namespace {

HWND TopLevel(const wchar_t* title, int left) {
    // A dialog without a template: it paints itself and knows its default button.
    return CreateWindowExW(WS_EX_TOPMOST, L"#32770", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, left, 500, 260,
                           160, nullptr, nullptr, nullptr, nullptr);
}

HWND Child(HWND parent, const wchar_t* name, const wchar_t* text, DWORD style, int left, int top) {
    return CreateWindowExW(0, name, text, WS_CHILD | style, left, top, 70, 20, parent, nullptr, nullptr,
                           nullptr);
}

// A control that answers every question for its text with a failure of its own.
LRESULT CALLBACK Rude(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) noexcept {
    return message == WM_GETTEXT ? -1 : DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

TargetApplication::TargetApplication() {
    const HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    thread_ = std::thread([this, ready] { Run(ready); });
    WaitForSingleObject(ready, 10000);
    CloseHandle(ready);
}

TargetApplication::~TargetApplication() {
    PostThreadMessageW(id_, WM_QUIT, 0, 0);
    thread_.join();
}

void TargetApplication::Run(HANDLE ready) {
    id_ = GetCurrentThreadId();
    login_ = TopLevel(L"Log in", 10);
    bare_ = TopLevel(L"Bare", 300);
    Child(login_, L"Static", L"Name:", WS_VISIBLE, 5, 5);
    Child(login_, L"Button", L"Remember", WS_VISIBLE | BS_AUTOCHECKBOX, 5, 30);
    Child(login_, L"Button", L"&OK", WS_VISIBLE | BS_DEFPUSHBUTTON, 5, 60);
    Child(login_, L"Button", L"Cancel", WS_VISIBLE | BS_PUSHBUTTON, 80, 60);
    Child(login_, L"Button", L"Secret", BS_PUSHBUTTON, 155, 60);
    Child(login_, L"Button", L"", WS_VISIBLE | BS_PUSHBUTTON, 155, 30);
    SetWindowSubclass(Child(login_, L"Button", L"", WS_VISIBLE | BS_PUSHBUTTON, 80, 30), &Rude, 0, 0);
    SetEvent(ready);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    DestroyWindow(login_);
    DestroyWindow(bare_);
}

}  // namespace recoveryui::test
