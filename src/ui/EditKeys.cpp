#include "ui/EditKeys.h"

#include <commctrl.h>

#include "ui/Subclass.h"

namespace recoveryui::ui {
namespace {

constexpr UINT_PTR kEnter = 1;
constexpr WPARAM kControlA = 1;  // as a character

bool IsKeyDown(LPARAM message, WPARAM key) {
    const auto* asked = reinterpret_cast<const MSG*>(message);
    return asked && asked->message == WM_KEYDOWN && asked->wParam == key;
}

bool MakesLines(HWND edit) {
    const LONG_PTR style = GetWindowLongPtrW(edit, GWL_STYLE);
    return style & ES_WANTRETURN && !(style & ES_READONLY);
}

LRESULT CALLBACK MultiLineProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    // Some versions of the control know Ctrl+A in a single line only.
    if (message == WM_CHAR && wParam == kControlA) return SendMessageW(window, EM_SETSEL, 0, -1);
    const LRESULT answer = CallOwn(window, message, wParam, lParam);
    if (message != WM_GETDLGCODE) return answer;
    const bool isSheets = IsKeyDown(lParam, VK_TAB) || IsKeyDown(lParam, VK_ESCAPE) ||
                          (IsKeyDown(lParam, VK_RETURN) && !MakesLines(window));
    // Coming here with Tab does not select every line, which the next key, Enter too, would replace.
    return answer & ~DLGC_HASSETSEL & ~(isSheets ? DLGC_WANTALLKEYS : 0);
}

LRESULT CALLBACK EnterProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                DWORD_PTR target) noexcept {
    const HWND combo = GetParent(window);
    const bool listOpen = SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, &EnterProcedure, id);
    if (message == WM_GETDLGCODE && IsKeyDown(lParam, VK_RETURN))
        return DefSubclassProc(window, message, wParam, lParam) | DLGC_WANTMESSAGE;
    if (wParam == VK_RETURN && !listOpen) {
        if (message == WM_KEYDOWN) PostMessageW(GetParent(combo), static_cast<UINT>(target), 0, 0);
        if (message == WM_KEYDOWN || message == WM_CHAR) return 0;
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

void LeaveKeysToSheet(HWND page) {
    HWND edit = nullptr;
    while ((edit = FindWindowExW(page, edit, WC_EDITW, nullptr)) != nullptr) {
        if (GetWindowLongPtrW(edit, GWL_STYLE) & ES_MULTILINE) PutBefore(edit, &MultiLineProcedure);
    }
}

void CatchEnter(HWND combo, UINT message) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (GetComboBoxInfo(combo, &info)) SetWindowSubclass(info.hwndItem, &EnterProcedure, kEnter, message);
}

}  // namespace recoveryui::ui
