// The tips of a dialog's buttons.
#pragma once

#include <windows.h>

#include <vector>

namespace recoveryui::ui {

// A tooltip window stands before its controls and looks at every message of theirs, so it is made when the
// mouse first comes over the dialog.
class ToolTips {
public:
    // The text of the string table that a control of the dialog is to show.
    void Add(int control, int stringId) noexcept;
    // The mouse is over a control of the dialog. The tooltip window dies with the dialog.
    void Show(HWND dialog) noexcept;
    void Forget() noexcept { waiting_.clear(); }

private:
    struct Tip {
        int control;
        int stringId;
    };
    std::vector<Tip> waiting_;
};

}  // namespace recoveryui::ui
