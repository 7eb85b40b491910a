#pragma once

#include <windows.h>

#include <commctrl.h>

namespace recoveryui::settings {

// Check boxes for a list view that asks for its states, in the look and size of the window: the first image
// is unchecked, the second one checked. The caller, or the list that it is given to, destroys them.
HIMAGELIST CheckImages(HWND window);

}  // namespace recoveryui::settings
