// The user points at a window of any application, without that application noticing.
#pragma once

#include <windows.h>

#include <optional>

namespace tovarin {

// Runs the thread's messages for the time, then takes the mouse until the user has clicked or given up.
// The point on the screen; nothing for giving up, also when the thread is asked to quit. Throws when the
// hand is out already, or when the platform refuses.
std::optional<POINT> LetUserPoint(DWORD waitMilliseconds);

}  // namespace tovarin
