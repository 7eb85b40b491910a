// Copying from controls that only show something.
#pragma once

#include <windows.h>

#include <string>

namespace recoveryui::ui {

// The selected rows of a list view (columns divided by tabs, rows by line ends), or the selected item of a
// tree; empty for any other control.
std::wstring SelectedText(HWND control);

// False when the clipboard could not be had.
bool CopyToClipboard(HWND owner, const std::wstring& text);

// What a list view or a tree of a dialog does beside showing: Ctrl+C copies, Ctrl+A selects all rows, and the
// context menu offers the copying. Each gives whether it handled the message.
bool CopyOnKey(const NMHDR& header);
bool CopyFromContextMenu(HWND dialog, HWND control, LPARAM place);

}  // namespace recoveryui::ui
