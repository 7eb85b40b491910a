#include "app/MainWindow.h"

#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "app/Dpi.h"
#include "app/Host.h"
#include "app/Placement.h"
#include "app/Text.h"
#include "app/ids.h"

namespace tovarin {
namespace {

constexpr UINT kJournalGrew = WM_APP + 1;
constexpr int kStatusId = 101;
constexpr int kWidth = 1000, kHeight = 640, kCallCountWidth = 120;  // at 96 dots per inch

void RegisterWindowClass(WNDPROC procedure) {
    WNDCLASSEXW entry{};
    entry.cbSize = sizeof entry;
    entry.lpfnWndProc = procedure;
    entry.hInstance = com::Module::Instance();
    const auto icon = [&](int size) {
        return static_cast<HICON>(LoadImageW(entry.hInstance, MAKEINTRESOURCEW(IDI_HOST), IMAGE_ICON,
                                             GetSystemMetrics(size), GetSystemMetrics(size), LR_SHARED));
    };
    entry.hIcon = icon(SM_CXICON);
    entry.hIconSm = icon(SM_CXSMICON);
    entry.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    entry.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
    entry.lpszMenuName = MAKEINTRESOURCEW(IDR_MENU);
    entry.lpszClassName = kMainWindowClass;
    RegisterClassExW(&entry);  // fails when a host ran before in this process: the class is still there
}

// No larger than the screen has room for from where Windows put the window.
SIZE FirstSize(HWND window, int dpi) {
    const RECT screen = WorkArea(window);
    RECT place{};
    GetWindowRect(window, &place);
    return {std::min<LONG>(MulDiv(kWidth, dpi, 96), screen.right - place.left),
            std::min<LONG>(MulDiv(kHeight, dpi, 96), screen.bottom - place.top)};
}

}  // namespace

MainWindow::MainWindow(HostServices& services) : services_(services), test_(services) {
    RegisterWindowClass(&Procedure);
    CreateWindowExW(0, kMainWindowClass, L"", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, com::Module::Instance(),
                    this);
    if (!window_) com::Check(E_FAIL);
}

MainWindow::~MainWindow() {
    services_.AddIns().OnChange(nullptr);
    if (listener_) services_.Journal()->RemoveListener(listener_.Get());
    if (window_) DestroyWindow(window_);
    if (font_) DeleteObject(font_);
}

void MainWindow::Show(int command) {
    ShowWindow(window_, command);
    UpdateWindow(window_);
}

void MainWindow::Run() {
    const HACCEL keys = LoadAcceleratorsW(com::Module::Instance(), MAKEINTRESOURCEW(IDR_KEYS));
    MSG message{};
    while (window_ && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (TranslateAcceleratorW(window_, keys, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

LRESULT CALLBACK MainWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_NCCREATE) {
        const auto created =
            static_cast<MainWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        created->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    const auto main = reinterpret_cast<MainWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (main) {
        try {
            LRESULT answer = 0;
            if (main->OnMessage(message, wParam, lParam, answer)) return answer;
        } catch (...) {
            ReportException(window);
            if (message == WM_CREATE) return -1;
        }
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

bool MainWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& answer) {
    switch (message) {
        case WM_CREATE: OnCreate(); return true;
        case WM_SIZE: OnSize(); return true;
        case WM_SETFOCUS: SetFocus(journal_.Window()); return true;
        case WM_DPICHANGED: {
            const RECT& place = *reinterpret_cast<const RECT*>(lParam);
            OnResolution(HIWORD(wParam));
            SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
                         place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
            return true;
        }
        case WM_COMMAND: OnCommand(LOWORD(wParam)); return true;
        case WM_NOTIFY: OnNotify(*reinterpret_cast<NMHDR*>(lParam)); return true;
        case WM_INITMENUPOPUP: OnMenuOpen(reinterpret_cast<HMENU>(wParam)); return true;
        case WM_MENUSELECT:
            OnMenuSelect(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HMENU>(lParam));
            return true;
        case WM_CONTEXTMENU:
            if (reinterpret_cast<HWND>(wParam) != journal_.Window()) return false;
            OnJournalMenu({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
            return true;
        case kJournalGrew:
            journal_.Add(listener_->Take());
            ShowCallCount();
            return true;
        case WM_CLOSE: OnClose(); return true;
        case WM_QUERYENDSESSION: answer = test_.MayLeave(window_); return true;
        case WM_NCDESTROY: window_ = nullptr; return false;
        default: return false;
    }
}

void MainWindow::OnCreate() {
    status_ = CreateWindowExW(
        0, STATUSCLASSNAMEW, LoadText(IDS_READY).c_str(), WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0,
        window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kStatusId)), com::Module::Instance(), nullptr);
    if (!status_) com::Check(E_FAIL);
    journal_.Create(window_);
    OnResolution(DpiOf(window_));
    const SIZE size = FirstSize(window_, dpi_);
    SetWindowPos(window_, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    listener_ = JournalListener::Make(window_, kJournalGrew);
    com::Check(services_.Journal()->AddListener(listener_.Get()));
    services_.AddIns().OnChange([this] { FillResourcesMenu(); });
    test_.OnChange([this] { ShowTitle(); });
    ShowTitle();
    ShowCallCount();
}

void MainWindow::OnResolution(int dpi) {
    const HFONT before = font_;
    dpi_ = dpi;
    font_ = CreateMessageFont(dpi);
    journal_.SetScale(font_, dpi);
    SendMessageW(status_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
    if (before) DeleteObject(before);
}

void MainWindow::OnSize() {
    RECT client{}, bar{};
    GetClientRect(window_, &client);
    SendMessageW(status_, WM_SIZE, 0, 0);
    GetWindowRect(status_, &bar);
    const int width = client.right, countWidth = MulDiv(kCallCountWidth, dpi_, 96);
    const int parts[] = {width > countWidth ? width - countWidth : 0, -1};
    SendMessageW(status_, SB_SETPARTS, std::size(parts), reinterpret_cast<LPARAM>(parts));
    journal_.Place({0, 0, width, client.bottom - (bar.bottom - bar.top)});
}

void MainWindow::OnNotify(NMHDR& header) {
    if (header.idFrom == JournalView::kId && header.code == LVN_GETDISPINFOW)
        journal_.OnDisplayInfo(reinterpret_cast<NMLVDISPINFOW&>(header));
}

// Not while a modal window is open: the test stays with it.
void MainWindow::OnClose() {
    if (IsWindowEnabled(window_) && test_.MayLeave(window_)) DestroyWindow(window_);
}

void MainWindow::ShowTitle() {
    const int format = test_.IsChanged() ? IDS_TITLE_CHANGED : IDS_TITLE;
    SetWindowTextW(window_, FormatText(format, {test_.Name()}).c_str());
}

void MainWindow::ShowCallCount() {
    const std::wstring text = FormatText(IDS_CALLS, {std::to_wstring(journal_.Count())});
    SendMessageW(status_, SB_SETTEXTW, 1, reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace tovarin
