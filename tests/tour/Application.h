// The application under test in a process of its own, for the pointing hand to point at.
#pragma once

#include <windows.h>

#include "tour/Tour.h"

namespace recoveryui::tour {

class Application {
public:
    static constexpr wchar_t kTitle[] = L"Order 4711";
    static constexpr int kMessage = 10, kTryAgain = 11;

    explicit Application(UserScreen& screen);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // Presses the wizard's pointing hand, then clicks the middle of a control with the mouse.
    void PointAt(UserScreen& screen, HWND wizard, int hand, int control) const;

private:
    PROCESS_INFORMATION process_{};
    HWND window_ = nullptr;
};

}  // namespace recoveryui::tour
