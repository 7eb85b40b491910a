// Pictures and icons of the module, in the size that the window's DPI asks for.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>

#include "com/Ptr.h"
#include "ui/Handles.h"

struct IWICImagingFactory;

namespace recoveryui::ui {

// Reads PNG resources; what decodes them is looked up once.
class Pictures {
public:
    Pictures() noexcept;
    ~Pictures();
    Pictures(const Pictures&) = delete;
    Pictures& operator=(const Pictures&) = delete;

    // A bitmap of exactly the given size, made from the best of the resource's three resolutions (id,
    // id + 1000, id + 2000). Empty on failure.
    Bitmap Load(int id, SIZE size);

private:
    com::Ptr<IWICImagingFactory> factory_;
    com::Ptr<IClassFactory> decoders_;
};

// An icon resource in the given pixel size (square).
Icon LoadIconOfSize(int id, int pixels);

// Icon resources as an image list for the window, in a size given at 96 DPI. The caller owns it.
HIMAGELIST LoadIcons(HWND window, std::span<const int> ids, int pixels);

}  // namespace recoveryui::ui
