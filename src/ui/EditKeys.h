// What the keys of edit boxes do inside dialogs.
#pragma once

#include <windows.h>

namespace recoveryui::ui {

// Tab, Escape and, where it makes no line, Enter in the multi-line edit boxes of a page go to the sheet. A
// box itself would only ask the page, which knows nothing of the sheet's buttons.
void LeaveKeysToSheet(HWND page);

// Enter in the edit box of a combo posts a message to its dialog instead of pressing the default button.
// While the list is open, Enter still chooses from it.
void CatchEnter(HWND combo, UINT message);

}  // namespace recoveryui::ui
