// The keys of a list that are commands of its dialog.
#pragma once

#include <windows.h>

#include "ui/Subclass.h"

namespace recoveryui::ui {

// For PutBefore: `commandOf` gives the command for a key, with Alt (of which a list itself says nothing) or
// without, and 0 for none. The command reaches the dialog as that of a button.
template <int (*commandOf)(WPARAM key, bool alt) noexcept>
LRESULT CALLBACK KeysToCommands(HWND list, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const bool alt = message == WM_SYSKEYDOWN;
    const int command = alt || message == WM_KEYDOWN ? commandOf(wParam, alt) : 0;
    if (!command) return CallOwn(list, message, wParam, lParam);
    // The platform has to see that Alt was not pressed for the menu.
    const LRESULT answer = alt ? CallOwn(list, message, wParam, lParam) : 0;
    SendMessageW(GetParent(list), WM_COMMAND, static_cast<WPARAM>(command), 0);
    return answer;
}

}  // namespace recoveryui::ui
