// What is seen of the pointing hand: a frame around a window, and a spot below the pointer that gives it
// the shape of a hand.
#pragma once

#include <windows.h>

#include <array>
#include <memory>

#include "com/Module.h"

namespace tovarin {

struct DestroyOwnedWindow {
    using pointer = HWND;
    void operator()(HWND window) const { DestroyWindow(window); }
};
using OwnedWindow = std::unique_ptr<HWND, DestroyOwnedWindow>;

class HandWindows {
public:
    // Throws when the platform gives no windows.
    HandWindows();

    // Puts the spot below the pointer, and the frame around the window there; none over the desktop.
    void Follow(POINT pointer);

private:
    void Frame(const RECT& place);

    recoveryui::com::LiveObject live_;
    OwnedWindow frame_;
    OwnedWindow spot_;
    RECT framed_{};
};

}  // namespace tovarin
