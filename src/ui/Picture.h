// Pictures and icons of the module, in the size that the window's DPI asks for.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>

#include "ui/Handles.h"

namespace recoveryui::ui {

// A PNG resource as a bitmap of exactly the given size, made from the best of its three resolutions
// (id, id + 1000, id + 2000). Empty on failure.
Bitmap LoadPicture(int id, SIZE size);

// An icon resource in the given pixel size (square).
Icon LoadIconOfSize(int id, int pixels);

// Icon resources as an image list for the window, in a size given at 96 DPI. The caller owns it.
HIMAGELIST LoadIcons(HWND window, std::span<const int> ids, int pixels);

}  // namespace recoveryui::ui
