// Message boxes under the product's name.
#pragma once

#include <windows.h>

#include <string>

namespace recoveryui::ui {

// Flags and result are MessageBox's. Without an icon flag: exclamation and OK.
int ShowMessage(HWND owner, const std::wstring& text, UINT flags = MB_OK | MB_ICONEXCLAMATION);
int ShowMessage(HWND owner, int stringId, UINT flags = MB_OK | MB_ICONEXCLAMATION);

}  // namespace recoveryui::ui
