#include "harness/Pointing.h"

#include <gtest/gtest.h>

#include "harness/ProcessWindows.h"

namespace recoveryui::test {
namespace {

constexpr int kAside = 5000;

// A window of the hand, in that place when one is given.
bool IsHandOut(const RECT* wanted) {
    for (const HWND window : TopLevelWindows()) {
        const RECT place = PlaceOf(window);
        if (ClassOf(window) == kHandClass && IsWindowVisible(window) &&
            (!wanted || EqualRect(&place, wanted)))
            return true;
    }
    return false;
}

}  // namespace

POINT MiddleOf(HWND window) {
    const RECT place = PlaceOf(window);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

void Hover(UserScreen& screen, HWND window) {
    const POINT middle = MiddleOf(window);
    const RECT place = PlaceOf(window);
    SetCursorPos(middle.x, middle.y);
    screen.WaitUntil("the window is framed", [&] { return IsHandOut(&place); });
}

void Click(DWORD down) {
    for (const DWORD event : {down, down * 2})
        mouse_event(event, 0, 0, 0, 0);  // the release is the next flag
}

void PointAt(UserScreen& screen, HWND wizard, int hand, HWND target) {
    const RECT before = PlaceOf(wizard);
    screen.Press(wizard, hand);
    screen.WaitUntil("the hand is out", [] { return IsHandOut(nullptr); });
    if (target) Hover(screen, target);
    EXPECT_EQ(PlaceOf(wizard).left, before.left - kAside) << "the wizard is out of the way";
    target ? Click() : screen.RealKeys({VK_ESCAPE});
    screen.WaitUntil("the wizard is back", [&] {
        const RECT now = PlaceOf(wizard);
        return EqualRect(&now, &before) != FALSE;
    });
    // It is back before it has filled its page.
    screen.Do([] {});
}

}  // namespace recoveryui::test
