// A group of radio buttons with consecutive ids.
#pragma once

#include <windows.h>

#include "ui/Window.h"

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
        for (int id = first; id <= last; ++id) {
            const HWND button = GetDlgItem(dialog, id);
            const bool chosen = id - first == place;
            // The chosen one is the group's tab stop; what is neither chosen nor a stop is left alone.
            const bool isStop = (GetWindowLongPtrW(button, GWL_STYLE) & WS_TABSTOP) != 0;
            if (chosen || isStop || IsChecked(button)) SetChecked(button, chosen);
        }
    }
};

}  // namespace recoveryui::ui
