// One tooltip window for the buttons of a dialog.
#pragma once

#include <windows.h>

namespace recoveryui::ui {

class ToolTips {
public:
    // Attaches a text of the string table to a control. The tooltip window dies with the dialog.
    void Add(HWND dialog, HWND control, int stringId);
    void Remove(HWND dialog, HWND control);

private:
    HWND window_ = nullptr;
};

}  // namespace recoveryui::ui
