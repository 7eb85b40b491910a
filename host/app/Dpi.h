// Resolution of a window, on every version of Windows.
#pragma once

#include <windows.h>

namespace tovarin {

int DpiOf(HWND window);
// The font of message boxes and status bars at a resolution; the caller deletes it.
HFONT CreateMessageFont(int dpi);

}  // namespace tovarin
