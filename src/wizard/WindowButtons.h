// The push buttons of a window of any process.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace recoveryui::wizard {

// Captions of the visible ones below the window, in their own order, as they stand. A program that does
// not answer ends the search.
std::vector<std::wstring> ButtonCaptions(HWND window);

}  // namespace recoveryui::wizard
