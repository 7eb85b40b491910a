#include "app/Placement.h"

#include <algorithm>

namespace tovarin {

RECT WorkArea(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

void CenterOnOwner(HWND window) {
    const HWND owner = GetWindow(window, GW_OWNER);
    const RECT screen = WorkArea(owner ? owner : window);
    RECT around = screen, place{};
    if (owner) GetWindowRect(owner, &around);
    GetWindowRect(window, &place);
    const LONG width = place.right - place.left, height = place.bottom - place.top;
    const LONG left = (around.left + around.right - width) / 2,
               top = (around.top + around.bottom - height) / 2;
    SetWindowPos(window, nullptr, std::max(screen.left, std::min(left, screen.right - width)),
                 std::max(screen.top, std::min(top, screen.bottom - height)), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace tovarin
