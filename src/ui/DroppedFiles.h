// Files that were dropped on a window.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace recoveryui::ui {

// The full paths in a WM_DROPFILES; ends the drop.
std::vector<std::wstring> TakeDroppedFiles(WPARAM drop);

}  // namespace recoveryui::ui
