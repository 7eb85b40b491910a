#include "tour/Application.h"

#include "harness/ProcessWindows.h"

namespace recoveryui::tour {
namespace {

// A window of the hand, which frames what is under the mouse.
constexpr wchar_t kHandClass[] = L"TovarinPointingHand";

bool IsFramed(const RECT& wanted) {
    RECT place{};
    for (const HWND window : test::TopLevelWindows()) {
        if (test::ClassOf(window) != kHandClass || !IsWindowVisible(window)) continue;
        GetWindowRect(window, &place);
        if (EqualRect(&wanted, &place)) return true;
    }
    return false;
}

}  // namespace

Application::Application(UserScreen& screen) {
    std::wstring command = std::wstring(L"target.exe ") + kTitle;
    STARTUPINFOW start{};
    start.cb = sizeof start;
    EXPECT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                               &process_));
    screen.WaitUntil("the application shows its window", [&] {
        window_ = FindWindowW(L"OrderEntry", kTitle);
        return window_ && IsWindowVisible(window_);
    });
}

Application::~Application() {
    TerminateProcess(process_.hProcess, 0);
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

void Application::PointAt(UserScreen& screen, HWND wizard, int hand, int control) const {
    RECT before{}, place{};
    GetWindowRect(wizard, &before);
    GetWindowRect(GetDlgItem(window_, control), &place);
    screen.Press(wizard, hand);
    SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    screen.WaitUntil("the control is framed", [&] { return IsFramed(place); });
    RECT aside{};
    GetWindowRect(wizard, &aside);
    EXPECT_EQ(aside.left, before.left - 5000) << "the wizard is out of the way";
    for (const DWORD event : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) mouse_event(event, 0, 0, 0, 0);
    screen.WaitUntil("the wizard is back", [&] {
        GetWindowRect(wizard, &aside);
        return EqualRect(&aside, &before) != FALSE;
    });
    // It is back before it has filled its page.
    screen.Do([] {});
}

}  // namespace recoveryui::tour
