// A group of radio buttons with consecutive ids.
#pragma once

#include <windows.h>

namespace recoveryui::ui {

struct RadioGroup {
    int first;
    int last;

    // The place of the chosen button, or -1.
    int Chosen(HWND dialog) const {
        for (int id = first; id <= last; ++id) {
            if (IsDlgButtonChecked(dialog, id) == BST_CHECKED) return id - first;
        }
        return -1;
    }
    // Clears all others; -1 clears all.
    void Choose(HWND dialog, int place) const {
        for (int id = first; id <= last; ++id)
            CheckDlgButton(dialog, id, id - first == place ? BST_CHECKED : BST_UNCHECKED);
    }
};

}  // namespace recoveryui::ui
