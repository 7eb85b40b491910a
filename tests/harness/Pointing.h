// What a user does with the pointing hand and the mouse of the machine.
#pragma once

#include "harness/UserScreen.h"

namespace recoveryui::test {

inline constexpr wchar_t kHandClass[] = L"TovarinPointingHand";  // of its windows

POINT MiddleOf(HWND window);
// Moves the mouse to the middle of the window, until the hand frames it.
void Hover(UserScreen& screen, HWND window);
// Presses a button and lets it go.
void Click(DWORD down = MOUSEEVENTF_LEFTDOWN);
// Presses the wizard's pointing hand, then clicks the middle of a window, or gives up when there is none. The
// wizard is beside the screen meanwhile, and back in its place when this returns.
void PointAt(UserScreen& screen, HWND wizard, int hand, HWND target);

}  // namespace recoveryui::test
