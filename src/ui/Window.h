// Small things that every window does with its controls.
#pragma once

#include <windows.h>

#include <string>

namespace recoveryui::ui {

// Text of any length.
std::wstring TextOf(HWND window);
// False where the window has no memory for it.
bool SetText(HWND window, const std::wstring& text);

bool IsChecked(HWND button);
void SetChecked(HWND button, bool checked);

// Disabling a control that has the focus moves the focus on first, so that the keyboard is never lost. What is
// as wanted is left alone.
void Enable(HWND control, bool enabled);
void Show(HWND control, bool visible);

// Selects the whole text of an edit box, scrolls to the caret and gives it the focus.
void SelectAllText(HWND edit);

// A rectangle of a child in its parent's client coordinates.
RECT RectInParent(HWND child);

// The wait cursor for the length of a scope.
class WaitCursor {
public:
    WaitCursor() noexcept : before_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { SetCursor(before_); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

private:
    HCURSOR before_;
};

}  // namespace recoveryui::ui
