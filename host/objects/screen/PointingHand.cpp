#include "objects/screen/PointingHand.h"

#include <memory>

#include "com/Guard.h"
#include "com/Module.h"
#include "objects/screen/HandGesture.h"
#include "objects/screen/HandWindows.h"

namespace tovarin {
namespace com = recoveryui::com;
namespace {

// A window below a resting pointer may move or vanish.
constexpr UINT kRefreshMilliseconds = 100;

struct RemoveHook {
    using pointer = HHOOK;
    void operator()(HHOOK hook) const { UnhookWindowsHookEx(hook); }
};
using Hook = std::unique_ptr<HHOOK, RemoveHook>;

[[noreturn]] void ThrowLastError() {
    throw com::HResultError(HRESULT_FROM_WIN32(GetLastError()));
}

HandInput MouseInput(WPARAM message) {
    switch (message) {
        case WM_LBUTTONDOWN: return HandInput::LeftDown;
        case WM_LBUTTONUP: return HandInput::LeftUp;
        case WM_RBUTTONDOWN: return HandInput::RightDown;
        case WM_RBUTTONUP: return HandInput::RightUp;
        case WM_MBUTTONDOWN:
        case WM_XBUTTONDOWN: return HandInput::OtherDown;
        case WM_MBUTTONUP:
        case WM_XBUTTONUP: return HandInput::OtherUp;
        default: return HandInput::Else;
    }
}

HandInput KeyInput(WPARAM message, DWORD key) {
    if (key != VK_ESCAPE) return HandInput::Else;
    return message == WM_KEYUP || message == WM_SYSKEYUP ? HandInput::EscapeUp : HandInput::EscapeDown;
}

// The hooks see every movement and press on the desktop before any application does. They only take
// notes: the platform drops a hook that keeps it waiting.
class Capture {
public:
    Capture() {
        active = this;
        mouse_.reset(SetWindowsHookExW(WH_MOUSE_LL, OnMouse, com::Module::Instance(), 0));
        if (mouse_) keyboard_.reset(SetWindowsHookExW(WH_KEYBOARD_LL, OnKey, com::Module::Instance(), 0));
        if (!keyboard_) {
            active = nullptr;
            ThrowLastError();
        }
    }
    ~Capture() { active = nullptr; }
    Capture(const Capture&) = delete;
    Capture& operator=(const Capture&) = delete;

    std::optional<POINT> Run() {
        HandWindows windows;
        const UINT_PTR timer = SetTimer(nullptr, 0, kRefreshMilliseconds, nullptr);
        MSG message{};
        bool quit = false;
        while (!quit && gesture_.Result() == HandGesture::Outcome::Pointing) {
            POINT pointer{};
            if (GetCursorPos(&pointer)) windows.Follow(pointer);
            quit = GetMessageW(&message, nullptr, 0, 0) <= 0;
            if (quit) break;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        KillTimer(nullptr, timer);
        if (quit) PostQuitMessage(static_cast<int>(message.wParam));
        if (gesture_.Result() != HandGesture::Outcome::Pointed) return std::nullopt;
        return point_;
    }

    static bool IsOut() { return active != nullptr; }

private:
    static LRESULT CALLBACK OnMouse(int code, WPARAM message, LPARAM data) {
        const auto& event = *reinterpret_cast<const MSLLHOOKSTRUCT*>(data);
        if (code == HC_ACTION && active && active->Note(MouseInput(message), &event.pt)) return 1;
        return CallNextHookEx(nullptr, code, message, data);
    }
    static LRESULT CALLBACK OnKey(int code, WPARAM message, LPARAM data) {
        const auto& event = *reinterpret_cast<const KBDLLHOOKSTRUCT*>(data);
        if (code == HC_ACTION && active && active->Note(KeyInput(message, event.vkCode), nullptr)) return 1;
        return CallNextHookEx(nullptr, code, message, data);
    }

    // Whether nobody else may see it.
    bool Note(HandInput input, const POINT* place) {
        if (input == HandInput::LeftDown && !gesture_.Decided()) point_ = *place;
        const bool taken = gesture_.Takes(input);
        PostThreadMessageW(thread_, WM_NULL, 0, 0);  // the loop looks again
        return taken;
    }

    static inline Capture* active = nullptr;

    const DWORD thread_ = GetCurrentThreadId();
    HandGesture gesture_;
    POINT point_{};
    Hook mouse_;
    Hook keyboard_;
};

// False when the thread is asked to quit.
bool Wait(DWORD milliseconds) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - now), QS_ALLINPUT,
                                    MWMO_INPUTAVAILABLE);
        // One at a time, for they may never cease.
        MSG message;
        if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) continue;
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return false;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return true;
}

}  // namespace

std::optional<POINT> LetUserPoint(DWORD waitMilliseconds) {
    if (Capture::IsOut()) throw com::HResultError(E_UNEXPECTED);
    if (!Wait(waitMilliseconds)) return std::nullopt;
    if (Capture::IsOut()) throw com::HResultError(E_UNEXPECTED);
    return Capture().Run();
}

}  // namespace tovarin
