// Windows in front of nobody: shows them, waits until they are painted, and presses their buttons.
#pragma once

#include <windows.h>

#include <functional>

namespace recoveryui::bench {

// Makes a modal call. When its window is painted, `act` is called with it from the modal loop; then the
// window is told to close.
void ShowModal(const std::function<void()>& call, const std::function<void(HWND)>& act);

// Handles what has been posted and paints what is not valid any more.
void Settle(HWND window);

// Whatever stops a measurement: a window that does not come, a page that does not change.
void Require(bool condition, const char* what);

}  // namespace recoveryui::bench
