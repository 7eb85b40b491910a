// The application under test: a window "Log in" on a thread of its own, with a text, a check box and
// buttons, one of them hidden; and an empty window "Bare".
#pragma once

#include <windows.h>

#include <thread>

namespace recoveryui::test {

class TargetApplication {
public:
    TargetApplication();
    ~TargetApplication();
    TargetApplication(const TargetApplication&) = delete;
    TargetApplication& operator=(const TargetApplication&) = delete;

    HWND Login() const { return login_; }
    HWND Bare() const { return bare_; }

private:
    void Run(HANDLE ready);

    HWND login_ = nullptr;
    HWND bare_ = nullptr;
    DWORD id_ = 0;
    std::thread thread_;
};

}  // namespace recoveryui::test
