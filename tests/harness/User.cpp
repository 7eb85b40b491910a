#include "harness/User.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>

#include "harness/ProcessWindows.h"
#include "harness/UserScreen.h"

namespace recoveryui::test {
namespace {

constexpr UINT kDo = WM_APP;
constexpr UINT kAreYouIdle = WM_APP + 1;

// Shared with the answer, which may arrive when the question has been given up.
struct Question {
    HANDLE answered = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    bool idle = false;
    ~Question() { CloseHandle(answered); }
};
using SharedQuestion = std::shared_ptr<Question>;
using Step = std::function<bool()>;

void Act(const UiThread& ui, const User::Script& script, unsigned patience) {
    try {
        UserScreen screen(ui, GetTickCount64() + patience * 1000ULL);
        script(screen);
        const ULONGLONG grace = testing::Test::HasFailure() ? 500 : std::min(5U, patience) * 1000;
        const ULONGLONG deadline = GetTickCount64() + grace;
        while (!ui.Ended() && GetTickCount64() < deadline) Sleep(1);
        if (!ui.Ended()) ADD_FAILURE() << "The user is done, but windows stay open.\n" << DescribeWindows();
    } catch (const std::exception& problem) {
        ADD_FAILURE() << "The user cannot go on: " << problem.what() << "\n" << DescribeWindows();
    }
    while (!ui.Ended()) {
        CloseWindows();
        Sleep(20);
    }
}

}  // namespace

UiThread::UiThread() {
    static const ATOM kind = [] {
        WNDCLASSW definition{};
        definition.lpfnWndProc = Procedure;
        definition.hInstance = GetModuleHandleW(nullptr);
        definition.lpszClassName = L"RecoveryUITestThread";
        return RegisterClassW(&definition);
    }();
    window_ = CreateWindowW(MAKEINTATOM(kind), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
}

UiThread::~UiThread() {
    DestroyWindow(window_);
}

LRESULT CALLBACK UiThread::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kDo) {
        std::unique_ptr<Step> step(reinterpret_cast<Step*>(lParam));
        const bool again = (*step)();
        if (again && PostMessageW(window, kDo, 0, lParam)) step.release();
        return 0;
    }
    if (message == kAreYouIdle) {
        const std::unique_ptr<SharedQuestion> question(reinterpret_cast<SharedQuestion*>(lParam));
        (*question)->idle = HIWORD(GetQueueStatus(QS_POSTMESSAGE | QS_INPUT)) == 0;
        SetEvent((*question)->answered);
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

bool UiThread::Do(std::function<void()> action, DWORD milliseconds) const {
    return DoWhile(
        [=] {
            action();
            return false;
        },
        milliseconds);
}

bool UiThread::DoWhile(std::function<bool()> step, DWORD milliseconds) const {
    const ULONGLONG deadline = GetTickCount64() + milliseconds;
    PostMessageW(window_, kDo, 0, reinterpret_cast<LPARAM>(new Step(std::move(step))));
    return WaitForIdle(deadline);
}

bool UiThread::WaitForIdle(ULONGLONG deadline) const {
    for (;;) {
        const auto question = std::make_shared<Question>();
        PostMessageW(window_, kAreYouIdle, 0, reinterpret_cast<LPARAM>(new SharedQuestion(question)));
        const ULONGLONG now = GetTickCount64();
        if (now >= deadline) return false;
        if (WaitForSingleObject(question->answered, static_cast<DWORD>(deadline - now)) != WAIT_OBJECT_0)
            return false;
        if (question->idle) return true;
        Sleep(1);  // posted questions come before real input: leave it a turn
    }
}

void RunPendingMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

void PumpUntil(HANDLE signal) {
    // Messages that somebody has looked at without taking them count as well.
    while (MsgWaitForMultipleObjectsEx(1, &signal, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE) !=
           WAIT_OBJECT_0) {
        // One at a time, for they may never cease.
        MSG message;
        if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

Beside::Beside(std::function<void(const UiThread&)> act)
    : act_(std::move(act)), thread_(CreateThread(nullptr, 0, Run, this, 0, nullptr)) {}

Beside::~Beside() {
    ui_.End();
    PumpUntil(thread_);
    CloseHandle(thread_);
}

DWORD WINAPI Beside::Run(void* beside) {
    const auto* const self = static_cast<Beside*>(beside);
    self->act_(self->ui_);
    return 0;
}

User::User(Script script, unsigned patienceSeconds)
    : Beside([=](const UiThread& ui) { Act(ui, script, patienceSeconds); }) {}

}  // namespace recoveryui::test
