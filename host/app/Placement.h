// Where windows appear.
#pragma once

#include <windows.h>

namespace tovarin {

// The part of the window's monitor that no task bar covers.
RECT WorkArea(HWND window);
// Into the middle of its owner, but on the screen.
void CenterOnOwner(HWND window);

}  // namespace tovarin
