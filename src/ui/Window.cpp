#include "ui/Window.h"

namespace recoveryui::ui {
namespace {

void LeaveFocus(HWND control) {
    const HWND focus = GetFocus();
    if (focus && (focus == control || IsChild(control, focus)))
        SendMessageW(GetParent(control), WM_NEXTDLGCTL, 0, FALSE);
}

}  // namespace

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

bool SetText(HWND window, const std::wstring& text) {
    return SetWindowTextW(window, text.c_str()) != FALSE;
}

bool IsChecked(HWND button) {
    return SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void SetChecked(HWND button, bool checked) {
    SendMessageW(button, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void Enable(HWND control, bool enabled) {
    if ((IsWindowEnabled(control) != FALSE) == enabled) return;
    if (!enabled) LeaveFocus(control);
    EnableWindow(control, enabled);
}

void Show(HWND control, bool visible) {
    if (!visible) LeaveFocus(control);
    ShowWindow(control, visible ? SW_SHOW : SW_HIDE);
}

void SelectAllText(HWND edit) {
    SetFocus(edit);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    SendMessageW(edit, EM_SCROLLCARET, 0, 0);
}

RECT RectInParent(HWND child) {
    RECT rect{};
    GetWindowRect(child, &rect);
    MapWindowPoints(HWND_DESKTOP, GetParent(child), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

}  // namespace recoveryui::ui
