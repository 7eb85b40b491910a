// A user of the tested windows: a script on a second thread, while the test's thread shows the window.
//
//   User user([](UserScreen& screen) {
//       const HWND manager = screen.WaitForWindow(L"Recovery Scenario Manager");
//       screen.Press(manager, IDC_MANAGER_NEW);
//   });
//   EXPECT_EQ(dialog->DoModal(), S_OK);
//
// A script that cannot go on, and windows that are still open when the user's patience ends, fail the test
// with a list of the windows, and everything is closed so that the modal call returns.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <memory>

namespace recoveryui::test {

class UserScreen;

// Reaches the thread that shows the windows through its own message loop.
class UiThread {
public:
    UiThread();
    ~UiThread();
    UiThread(const UiThread&) = delete;
    UiThread& operator=(const UiThread&) = delete;

    DWORD Id() const { return thread_; }
    // Runs a function from the thread's message loop, then waits until the thread waits for the user again
    // (a function that opens a modal window has not returned by then). False when that takes too long.
    bool Do(std::function<void()> action, DWORD milliseconds) const;
    // The same with a function that runs again, behind whatever it has put into the queue, while it answers
    // true.
    bool DoWhile(std::function<bool()> step, DWORD milliseconds) const;
    // The modal call is over.
    void End() { ended_ = true; }
    bool Ended() const { return ended_; }

private:
    bool WaitForIdle(ULONGLONG deadline) const;
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    DWORD thread_ = GetCurrentThreadId();
    HWND window_ = nullptr;
    std::atomic<bool> ended_{false};
};

// Lets this thread's windows do what they have put off.
void RunPendingMessages();
// Runs this thread's messages until the handle is signalled.
void PumpUntil(HANDLE signal);

// A second thread beside a modal call of this one.
class Beside {
public:
    explicit Beside(std::function<void(const UiThread&)> act);
    // Waits for its end, with the messages still running.
    ~Beside();
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

private:
    static DWORD WINAPI Run(void* beside);

    std::function<void(const UiThread&)> act_;
    UiThread ui_;
    HANDLE thread_;
};

class User : public Beside {
public:
    using Script = std::function<void(UserScreen&)>;

    explicit User(Script script, unsigned patienceSeconds = 20);
};

}  // namespace recoveryui::test
